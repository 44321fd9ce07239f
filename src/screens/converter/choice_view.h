// A drop-down list of the converter.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/widgets/choice_box.h"

namespace kav {

/// The user taps an entry, or types how it begins: with its number, or its name without that, or
/// one of the later words of the name if no other entry begins so. The list has room for every
/// category and unit that is built in, so that nothing moves when the category changes. Longer
/// texts are cut.
class ChoiceView final : public ChoiceBox {
 public:
  /// A list with the accessible name `name`.
  explicit ChoiceView(std::u16string_view name);

  /// Offers `texts` and chooses the one at `chosen`, none for -1. Emits no signal.
  void Write(const std::vector<std::u16string>& texts, int chosen);
};

}  // namespace kav
