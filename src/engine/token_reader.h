// What the tokenizers share: a position in a text, and how words, shifts and unknown characters are
// read.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "common/ascii.h"
#include "engine/calc_error.h"
#include "engine/calc_token.h"

namespace kav {

/// A position in a text that is read from the left. The text must outlive it.
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
  const char* Next() const { return next_; }
  void SkipTo(const char* next) { next_ = next; }

  /// Takes the characters up to the first that `belongs` refuses.
  template <class Belongs>
  std::string_view TakeWhile(Belongs belongs) {
    const char* start = next_;
    while (next_ != end_ && belongs(*next_)) ++next_;
    return {start, static_cast<std::size_t>(next_ - start)};
  }
  std::string_view TakeWord() { return TakeWhile(IsLetter<char>); }

  /// All that is not read yet.
  std::string_view Rest() const { return {next_, static_cast<std::size_t>(end_ - next_)}; }

 private:
  const char* next_;
  const char* end_;
};

/// What `reader` has taken of `text` since it stood at `start`, without the blanks behind it; if it
/// has taken nothing, the character that comes next, which may have several bytes.
TextPlace PlaceSince(const char* start, const TokenReader& reader, std::string_view text);

/// Cuts `text` into tokens. `readToken(reader, tokens)` appends the token that comes next or
/// answers why it cannot. There is room for `most`. Fails if `text` is empty, with what `readToken`
/// answers, or with a token too many; the last two with their place.
template <class ReadToken>
CalcResult<TokenArray> ReadTokens(std::string_view text, ReadToken readToken,
                                  int most = TokenArray::kCapacity) {
  CalcResult<TokenArray> tokens = TokenArray();  // Returned as it is, never copied.
  std::optional<CalcError> error;
  if (text.empty()) error = MakeError(CalcErrorCode::NullExpression);
  TokenReader reader(text);
  const char* start = nullptr;
  for (reader.SkipBlanks(); !error && !reader.AtEnd(); reader.SkipBlanks()) {
    start = reader.Next();
    error = tokens->Count() >= most ? MakeError(CalcErrorCode::LengthLimit)
                                    : readToken(reader, *tokens);
  }
  if (error && start != nullptr) error->place = PlaceSince(start, reader, text);
  if (error) tokens = *std::move(error);
  return tokens;
}

/// Where a token stands in `text`, cut once with room for the tokens before it alone, and once with
/// room for it too: up to the next token, without blanks. nullopt if there is no such token. To cut
/// again what failed costs nothing as long as nothing fails; a place in each token would.
std::optional<TextPlace> PlaceBetween(const CalcResult<TokenArray>& before,
                                      const CalcResult<TokenArray>& with, std::string_view text);

/// Reads a run of '<' and '>': exactly "<<" or ">>" is a shift, any other run is not supported.
std::optional<CalcError> ReadShift(TokenReader& reader, TokenArray& tokens);

/// The error about the character that comes next, which may have several bytes.
CalcError UnsupportedCharacter(const TokenReader& reader);

}  // namespace kav
