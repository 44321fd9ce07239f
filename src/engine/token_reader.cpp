#include "engine/token_reader.h"

#include "common/number_text.h"

namespace kav {

std::optional<CalcError> ReadShift(TokenReader& reader, TokenArray& tokens) {
  const auto run = reader.TakeWhile([](char c) { return c == '<' || c == '>'; });
  if (run != "<<" && run != ">>") return MakeError(CalcErrorCode::NotSupported, run);
  tokens.Append(OperatorToken(run.front()));
  return std::nullopt;
}

TextPlace PlaceSince(const char* start, const TokenReader& reader, std::string_view text) {
  const auto position = static_cast<std::size_t>(start - text.data());
  const auto taken = static_cast<std::size_t>(reader.Next() - start);
  const std::string_view token = TrimBlanks(text.substr(position, taken));
  return {position, token.empty() ? Utf8Length(text.substr(position)) : token.size()};
}

std::optional<TextPlace> PlaceBetween(const CalcResult<TokenArray>& before,
                                      const CalcResult<TokenArray>& with, std::string_view text) {
  if (before || !before.error().place) return std::nullopt;
  const std::size_t start = before.error().place->position;
  const std::size_t end = with || !with.error().place ? text.size() : with.error().place->position;
  return TextPlace{start, TrimBlanks(text.substr(start, end - start)).size()};
}

CalcError UnsupportedCharacter(const TokenReader& reader) {
  const std::string_view rest = reader.Rest();
  return MakeError(CalcErrorCode::NotSupported, rest.substr(0, Utf8Length(rest)));
}

}  // namespace kav
