// The fields of the macro editor, for tests.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "macros/macro_editor_model.h"
#include "support/marked_line.h"

namespace kav::test {

/// The fields as one text: "sq|0|x^2", "-" for a type that is not chosen.
inline std::u16string Spelled(const MacroFields& fields) {
  const std::u16string type =
      fields.type ? Widen(PrintInteger(static_cast<int>(*fields.type))) : u"-";
  return fields.name + u"|" + type + u"|" + fields.formula.Text();
}

inline MacroFields Fields(std::u16string_view name, std::optional<VariableType> type,
                          std::u16string_view markedFormula) {
  return {std::u16string(name), type, MarkedLine(markedFormula)};
}

/// Saves "m0", "m1" and so on.
inline void StoreNumbered(SettingsStore& store, int count) {
  for (int i = 0; i < count; ++i) {
    ASSERT_TRUE(
        SaveMacro({Widen("m" + std::to_string(i)), VariableType::X, u"x"}, std::nullopt, store));
  }
}

}  // namespace kav::test
