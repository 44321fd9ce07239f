// A scientific screen over settings of its own, for the tests of its model.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "scientific/scientific_model.h"
#include "settings/settings_store.h"
#include "support/marked_line.h"
#include "support/screen_keys.h"

namespace kav::test {

using Texts = std::vector<std::u16string>;

// The items of the base menu.
inline constexpr int kBinaryItem = 32805;
inline constexpr int kOctalItem = 32806;
inline constexpr int kDecimalItem = 32807;
inline constexpr int kHexadecimalItem = 32808;

inline SettingKey<std::int32_t> Number(std::string_view section, std::string_view name) {
  return {section, name, -12345};
}

class Screen : public testing::Test {
 protected:
  Screen() { Open(); }

  void Open() { model_ = std::make_unique<ScientificModel>(store_); }
  void Set(std::string_view section, std::string_view name, std::int32_t value) {
    store_.Set(Number(section, name), value);
  }
  std::int32_t Stored(std::string_view section, std::string_view name) {
    return store_.Get(Number(section, name));
  }
  /// Evaluates `text` in place of the line.
  void Evaluate(std::u16string_view text) {
    model_->SetLine(std::u16string(text), {text.size(), text.size()});
    Press(*model_, u"=");
  }
  void SetMarked(std::u16string_view marked) {
    const ExpressionLine line = MarkedLine(marked);
    model_->SetLine(line.Text(), line.Selected());
  }
  std::u16string MarkedNow() const { return Marked(model_->Line()); }
  std::u16string Result() const { return model_->ResultText(); }
  bool IsShiftOn() const { return model_->IsVisible(Key::ShiftActive); }
  /// The register M, as the converter is told it.
  double Memory() { return std::get<OpenConverter>(model_->Press(Key::Converter)).input.memory; }
  const Texts& History() const { return model_->PastLines().Entries(); }

  MemorySettingsStore store_;
  std::unique_ptr<ScientificModel> model_;
};

}  // namespace kav::test
