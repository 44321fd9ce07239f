// What a key or a menu item asks of the outside, and what comes back.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kav {

/// The positions in the unit converter's lists that it opens with; -1 for none.
struct ConverterPositions {
  int category = -1;
  int input = -1;
  int output = -1;

  bool operator==(const ConverterPositions&) const = default;
};

/// What the unit converter is opened with, and what it leaves: `memory` is the register M. `result`
/// is the converted text where it was closed with OK.
struct ConverterInput {
  std::u16string value;
  ConverterPositions positions;
  double memory = 0;
};
struct ConverterOutcome {
  std::optional<std::u16string> result;
  ConverterPositions positions;
  double memory = 0;
};

struct Nothing {};
struct ShowHistoryMenu {};
struct ShowBaseMenu {};
struct ShowMemoryMenu {};
struct OpenMacroEditor {
  std::u16string_view message;  ///< told first, with the stop icon; empty for none
};
struct OpenMacroList {};
struct OpenConverter {
  ConverterInput input;
};
struct StoreMemoryVariable {
  std::u16string value;
};
struct RecallMemoryVariable {};
struct OpenConstants {};
using KeyRequest = std::variant<Nothing, ShowHistoryMenu, ShowBaseMenu, ShowMemoryMenu,
                                OpenMacroEditor, OpenMacroList, OpenConverter, StoreMemoryVariable,
                                RecallMemoryVariable, OpenConstants>;

}  // namespace kav
