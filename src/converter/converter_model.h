// The unit converter: a value, a category, the units in it, and what the value is in the other one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "converter/unit_tables.h"
#include "converter/user_conversions.h"
#include "display/number_format.h"
#include "settings/settings_store.h"

namespace kav {

/// What is selected in the lists; -1 for nothing.
struct UnitPositions {
  int category = -1;
  int input = -1;   ///< of the units, or of the conversions where a category lists those
  int output = -1;  ///< of the units; nothing where a category lists conversions

  bool operator==(const UnitPositions&) const = default;
};

/// Every answer is of what is chosen and typed at that moment. The user's own conversions are those
/// that were stored when it was made, or when they were reread.
class ConverterModel {
 public:
  /// Begins with `text` as the value to convert and with `remembered`, as far as there still is
  /// such a category and such units in it. `settings` must outlive the model.
  ConverterModel(SettingsStore& settings, std::u16string text, UnitPositions remembered);

  /// What there is to choose from. Where the category lists conversions from one unit to another,
  /// they stand in the first list and the second is empty.
  static std::vector<std::u16string> Categories();
  const std::vector<std::u16string>& Inputs() const { return inputs_; }
  const std::vector<std::u16string>& Outputs() const { return outputs_; }
  const UnitPositions& Positions() const { return positions_; }
  bool ListsConversions() const;

  /// Loads both lists and selects the first of each; the category that is chosen already stays as
  /// it is. Answers what to tell the user where there are none of his own conversions yet: he may
  /// then write some, and RereadUserConversions is to be called.
  [[nodiscard]] std::optional<std::u16string_view> ChooseCategory(int category);
  /// Loads the lists of the category again; of the first one where there still are none.
  void RereadUserConversions();

  // A position that there is not selects nothing.
  void ChooseInput(int position);
  void ChooseOutput(int position);

  /// Whether there is the way back from what is selected.
  bool CanSwap() const;
  /// Makes the output unit the input unit and the other way round.
  void Swap();

  const std::u16string& Text() const { return text_; }
  void SetText(std::u16string text) { text_ = std::move(text); }
  bool TextIsNumber() const;

  /// The result line: the converted value in the user's display format, the reason why it cannot be
  /// shown, or nothing where there is no value or nothing to convert it to.
  std::u16string ShownResult() const;
  /// The converted value for a line, a dialog or a memory variable, without separators; nullopt
  /// where there is none or it cannot be shown.
  std::optional<std::u16string> Result() const;
  /// Why the converter cannot be closed with OK; nullopt where it can.
  std::optional<std::u16string_view> OkRefusal() const;

 private:
  const UnitCategory* Category() const;
  void LoadLists();
  /// nullopt where the text is no number or too little is selected.
  std::optional<double> Converted() const;
  std::optional<double> Convert(double value) const;
  /// The place in the first list of the conversion back from the one at `position`; -1 where there
  /// is none.
  int ReverseOf(int position) const;

  const SettingsStore& settings_;
  const DisplayFormat format_;
  std::vector<UserConversion> userConversions_;
  std::u16string text_;
  UnitPositions positions_;
  int reverse_ = -1;
  std::vector<std::u16string> inputs_;
  std::vector<std::u16string> outputs_;
};

}  // namespace kav
