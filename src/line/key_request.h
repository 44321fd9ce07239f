// What the keys and menu items of a screen ask of the outside: one set of requests for all screens.
// A model's own variant names those that it makes, and what only its screen knows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

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

/// The pop-up menu of `key`: the model's MenuOf(key), and then Choose(key, id).
template <class Key>
struct ShowMenu {
  Key key;
};

/// A question that pressing `key` raises; only on Yes does the key do its work.
template <class Key>
struct AskFirst {
  Key key;
  std::u16string_view question;
};

struct TellStop {
  std::u16string text;  ///< with the stop icon
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
