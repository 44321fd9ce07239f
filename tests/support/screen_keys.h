// Drives the scientific screen by the captions of its keys.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "scientific/scientific_model.h"
#include "settings/settings_store.h"

namespace kav::test {

/// What is typed at the caret, in place of the selection.
inline void Type(ScientificModel& model, std::u16string_view text) {
  ExpressionLine line = model.Line();
  line.InsertText(text);
  model.SetLine(line.Text(), line.Selected());
}

inline ScientificRequest PressCaption(ScientificModel& model, std::u16string_view caption) {
  const auto key = model.KeyShowing(caption);
  if (!key) {
    ADD_FAILURE() << "no key shows " << Narrow(caption);
    return Nothing{};
  }
  return model.Press(*key);
}

/// Presses keys by the captions that they show at that moment, separated by blanks; a text in
/// quotes is typed. Returns what the last one asks for.
inline ScientificRequest Press(ScientificModel& model, std::u16string_view keys) {
  ScientificRequest request;
  while (!keys.empty()) {
    const char16_t first = keys.front();
    const std::size_t end = std::min(keys.find(first == u'"' ? u'"' : u' ', 1), keys.size());
    if (first == u'"') {
      Type(model, keys.substr(1, end - 1));
    } else if (first != u' ') {
      request = PressCaption(model, keys.substr(0, end));
    }
    keys.remove_prefix(first == u' ' ? 1 : std::min(end + 1, keys.size()));
  }
  return request;
}

struct Lines {
  std::u16string expression;
  std::u16string result;

  bool operator==(const Lines&) const = default;
};

inline void PrintTo(const Lines& lines, std::ostream* out) {
  *out << Narrow(lines.expression) << " -> " << Narrow(lines.result);
}

inline Lines LinesOf(const ScientificModel& model) {
  return {model.Line().Text(), model.ResultText()};
}

/// The two lines of a fresh screen after these keys.
inline Lines Keys(std::u16string_view keys) {
  MemorySettingsStore store;
  ScientificModel model(store);
  Press(model, keys);
  return LinesOf(model);
}

}  // namespace kav::test
