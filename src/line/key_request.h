// What a screen's model asks of the outside when a key is pressed or a menu item is chosen. All
// screens use these types; the model of each has a variant of those that it uses.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common/unit_positions.h"

namespace kav {

/// What the unit converter is opened with, and what it leaves; `memory` is the register M. `result`
/// is the converted text, if the converter was closed with OK.
struct ConverterInput {
  std::u16string value;
  UnitPositions positions;
  double memory = 0;
};
struct ConverterOutcome {
  std::optional<std::u16string> result;
  UnitPositions positions;
  double memory = 0;
};

struct Nothing {};

/// Show the pop-up menu of `key`: the model's MenuOf(key), and then call Choose(key, id).
template <class Key>
struct ShowMenu {
  Key key;
};

/// Ask before `key` does its work, which it does only on Yes.
template <class Key>
struct AskFirst {
  Key key;
  std::u16string_view question;
};

struct TellStop {
  std::u16string text;       ///< with the stop icon
  std::u16string more = {};  ///< stands below, if not empty
};

struct TellNotice {
  std::u16string text;  ///< as a warning
};

struct AskSaveFile {};  ///< then the model's SaveTo with the file's path
struct AskLoadFile {
  std::u16string_view question = {};  ///< first, if not empty: on Yes as AskSaveFile
};                                    ///< then the model's LoadFrom with the file's path

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

}  // namespace kav
