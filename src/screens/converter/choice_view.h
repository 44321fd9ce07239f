// A list that drops down, from which the converter's user chooses.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/widgets/choice_box.h"

namespace kav {

/// Takes taps and, where a text begins with what is typed, keys. It keeps room for whatever is
/// built in, so that nothing moves from one category to the next; names that the user gave may be
/// of any length.
class ChoiceView final : public ChoiceBox {
 public:
  explicit ChoiceView(std::u16string_view name);

  /// Offers `texts`, of which the one at `chosen` is chosen; none for -1. Tells nobody.
  void Write(const std::vector<std::u16string>& texts, int chosen);
};

}  // namespace kav
