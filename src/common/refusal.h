// What an editor answers if it cannot accept what was typed.
#pragma once

#include <string>

namespace kav {

/// A refused input: the text to show, and the field (of the editor's own enumeration) that gets the
/// focus back.
template <class Field>
struct Refusal {
  std::u16string text;
  Field focus;
};

}  // namespace kav
