// Tokens as a line to read and compare: "2 * F41 ( 30 )".
#pragma once

#include <string>

#include "common/number_text.h"
#include "engine/calc_token.h"

namespace kav::test {

inline std::string Spelled(const CalcToken& token) {
  if (token.isNumber != 0 && token.symbol == 0) return PrintRoundTrip(token.value);
  if (token.functionCode == FunctionCode::None) return {token.symbol};
  return token.symbol + PrintInteger(static_cast<int>(token.functionCode));
}

inline std::string Spelled(const TokenArray& tokens) {
  std::string line;
  for (int i = 0; i < tokens.Count(); ++i) {
    if (i > 0) line += ' ';
    line += Spelled(tokens[i]);
  }
  return line;
}

}  // namespace kav::test
