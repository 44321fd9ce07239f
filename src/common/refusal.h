// What an editor answers when it cannot accept what was typed.
#pragma once

#include <string>

namespace kav {

/// A refused input: the text to show and the field (an enumeration of the editor's own) that gets
/// the focus back.
template <class Field>
struct Refusal {
  std::u16string text;
  Field focus;
};

}  // namespace kav
