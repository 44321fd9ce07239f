// What both tokenizers share: a place in a text, and how words, shifts and odd characters are read.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "engine/calc_error.h"
#include "engine/calc_token.h"

namespace kav {

constexpr bool IsDecimalDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// A place in a text that is read from the left.
class TokenReader {
 public:
  explicit TokenReader(std::string_view text) : next_(text.data()), end_(next_ + text.size()) {}

  void SkipBlanks() {
    while (next_ != end_ && *next_ == ' ') ++next_;
  }
  bool AtEnd() const { return next_ == end_; }
  /// The next character; not at the end.
  char Peek() const { return *next_; }
  void Skip() { ++next_; }

  /// Takes the characters up to the first that `belongs` refuses.
  template <class Belongs>
  std::string_view TakeWhile(Belongs belongs) {
    const char* start = next_;
    while (next_ != end_ && belongs(*next_)) ++next_;
    return {start, static_cast<std::size_t>(next_ - start)};
  }
  std::string_view TakeWord() { return TakeWhile(IsLetter); }

  /// All that is not read yet.
  std::string_view Rest() const { return {next_, static_cast<std::size_t>(end_ - next_)}; }

 private:
  const char* next_;
  const char* end_;
};

/// Reads a run of '<' and '>': exactly "<<" or ">>" is a shift.
std::optional<CalcError> ReadShift(TokenReader& reader, TokenArray& tokens);

/// The error about the character that comes next, named whole where it is not ASCII.
CalcError UnsupportedCharacter(const TokenReader& reader);

}  // namespace kav
