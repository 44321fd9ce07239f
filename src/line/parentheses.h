// Parentheses that belong together in a line.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kav {

/// The places of two parentheses of a text, the opening one first.
struct ParenthesisPair {
  std::size_t open;
  std::size_t close;

  bool operator==(const ParenthesisPair&) const = default;
};

/// The pair of `text` beside which the caret stands: that of the character before the caret or, if
/// that is no parenthesis with a partner, of the one behind it. nullopt if there is none.
std::optional<ParenthesisPair> PairAtCaret(std::u16string_view text, std::size_t caret);

}  // namespace kav
