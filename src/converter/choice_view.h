// A list that drops down, from which the converter's user chooses.
#pragma once

#include <QComboBox>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// Takes taps and, where a text begins with what is typed, keys. It is as wide as its place: names
/// that the user gave may be of any length.
class ChoiceView final : public QComboBox {
 public:
  explicit ChoiceView(std::u16string_view name);

  /// Offers `texts`, of which the one at `chosen` is chosen; none for -1. Tells nobody.
  void Write(const std::vector<std::u16string>& texts, int chosen);
};

}  // namespace kav
