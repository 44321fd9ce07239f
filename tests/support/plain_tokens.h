// Cutting a text into tokens and checking their order a second time, as plainly as the rules read:
// what tests hold the engine against.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calc_modes.h"

namespace kav::test {

/// `symbol` is 'F' for a function, 'V' for a value, 0 for what is consumed.
struct PlainToken {
  char symbol = 0;
  std::string name;
  double value = 0;
};
using PlainTokens = std::vector<PlainToken>;

inline constexpr std::array kPlainFunctions{"sin",  "cos",  "tan",  "asin", "acos", "atan",
                                            "sinh", "cosh", "tanh", "log",  "ln",   "exp",
                                            "sqrt", "abs",  "int",  "frac"};

/// The values of x, y and z, in this order.
using PlainVariables = std::array<double, 3>;

/// The tokens of a text up to the first error, and its message; empty if there is none.
struct PlainText {
  PlainTokens tokens;
  std::string message;
};

/// Cuts `text`, whose case is folded. With `variables` it may use x, y and z. Reads numbers in the
/// locale in force, which has to be C.
PlainText ReadPlainTokens(std::string_view text, BaseMode base,
                          const PlainVariables* variables = nullptr);

/// Whether a token may stand between its neighbours, all given by their symbols; '[' and ']' stand
/// for the ends of the text.
bool PlainMayStand(char before, char symbol, char after, BaseMode base);

/// The message about the order of `tokens`, empty if it is right.
std::string PlainOrderMessage(const PlainTokens& tokens, BaseMode base);

}  // namespace kav::test
