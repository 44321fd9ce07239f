#include "engine/token_reader.h"

#include "common/number_text.h"

namespace kav {

std::optional<CalcError> ReadShift(TokenReader& reader, TokenArray& tokens) {
  const auto run = reader.TakeWhile([](char c) { return c == '<' || c == '>'; });
  if (run != "<<" && run != ">>") return MakeError(CalcErrorCode::NotSupported, run);
  tokens.Append(OperatorToken(run.front()));
  return std::nullopt;
}

CalcError UnsupportedCharacter(const TokenReader& reader) {
  const std::string_view rest = reader.Rest();
  return MakeError(CalcErrorCode::NotSupported, rest.substr(0, Utf8Length(rest)));
}

}  // namespace kav
