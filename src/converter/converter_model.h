// The unit converter: a value, a category, an input and an output unit, and the converted value.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/expected.h"
#include "common/unit_positions.h"
#include "converter/unit_tables.h"
#include "converter/user_conversions.h"
#include "display/number_format.h"
#include "settings/settings_store.h"

namespace kav {

/// Everything follows what is chosen and typed at that moment. The user's own conversions are read
/// when the model is made, and by RereadUserConversions.
class ConverterModel {
 public:
  /// Begins with the value `text` and with `remembered`, as far as that category and those units
  /// still exist. `settings` must outlive the model.
  ConverterModel(SettingsStore& settings, std::u16string text, UnitPositions remembered);

  // What there is to choose from. If the category lists conversions, these are the inputs and there
  // are no outputs.

  static std::vector<std::u16string> Categories();
  const std::vector<std::u16string>& Inputs() const { return inputs_; }
  const std::vector<std::u16string>& Outputs() const { return outputs_; }
  const UnitPositions& Positions() const { return positions_; }
  bool ListsConversions() const;

  /// Loads both lists and selects the first of each. The category that is chosen already stays as
  /// it is. If it is that of the user's own conversions and there are none, returns what to tell
  /// the user, who may then write some; RereadUserConversions is to be called after that.
  [[nodiscard]] std::optional<std::u16string_view> ChooseCategory(int category);
  /// Loads the category again; the first one instead if the user still has no conversions.
  void RereadUserConversions();
  /// Takes what the user changed of them meanwhile. Everything that is chosen stays so, as far as
  /// it still exists.
  void TakeUserConversions();

  // A position that does not exist selects nothing.
  void ChooseInput(int position);
  void ChooseOutput(int position);

  /// Whether both units are selected, or there is a conversion back from the selected one.
  bool CanSwap() const;
  /// Exchanges the input and the output unit.
  void Swap();

  const std::u16string& Text() const { return text_; }
  void SetText(std::u16string text) { text_ = std::move(text); }
  /// Why the text is neither a number nor an expression that has a value, such as 1/2 and 2*Pi;
  /// nullopt if it is one. Angles are in the stored unit.
  std::optional<std::u16string> TextRefusal() const;

  /// The result line: the converted value in the user's display format, or the reason why it cannot
  /// be shown. Empty if the text is no number or too little is selected.
  std::u16string ShownResult() const;
  /// The converted value without separators, to be inserted elsewhere; nullopt if there is none or
  /// it cannot be shown.
  std::optional<std::u16string> Result() const;
  /// Why the converter cannot be closed with OK; nullopt if it can.
  std::optional<std::u16string> OkRefusal() const;

 private:
  const UnitCategory* Category() const;
  void LoadLists();
  Expected<double, std::u16string> Value() const;
  /// nullopt if the text is no number or too little is selected.
  std::optional<double> Converted() const;
  std::optional<double> Convert(double value) const;
  /// The position of the conversion back from the one at `position`; -1 if there is none.
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
