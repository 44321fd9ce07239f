#include "matrix/unknown_order.h"

#include <cstddef>
#include <utility>
#include <variant>

#include "common/number_text.h"
#include "engine/calc_modes.h"
#include "engine/fold_case.h"
#include "matrix/matrix_operations.h"
#include "matrix/matrix_order.h"
#include "matrix/matrix_reducer.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_tokenizer.h"

namespace kav {
namespace {

bool IsMark(const MatrixToken& token, MatrixPunctuation mark) {
  const auto* held = std::get_if<MatrixPunctuation>(&token);
  return held != nullptr && *held == mark;
}

/// Where the parenthesis at `open` is closed; all are.
std::size_t CloseOf(const MatrixTokens& tokens, std::size_t open) {
  int depth = 0;
  std::size_t at = open;
  for (; at < tokens.size(); ++at) {
    if (IsMark(tokens[at], MatrixPunctuation::Open)) ++depth;
    if (IsMark(tokens[at], MatrixPunctuation::Close) && --depth == 0) break;
  }
  return at;
}

MatrixTokens WithoutOuterParentheses(MatrixTokens tokens) {
  while (!tokens.empty() && IsMark(tokens.front(), MatrixPunctuation::Open) &&
         CloseOf(tokens, 0) + 1 == tokens.size()) {
    tokens = MatrixTokens(tokens.begin() + 1, tokens.end() - 1);
  }
  return tokens;
}

/// The first argument, if all of `tokens` is one call of the function; else nothing.
MatrixTokens Coefficients(const MatrixTokens& tokens) {
  if (tokens.size() < 3 || CloseOf(tokens, 1) + 1 != tokens.size()) return {};
  const auto* function = std::get_if<MatrixFunction>(&tokens.front());
  if (function == nullptr || *function != MatrixFunction::LinearEquation) return {};
  std::size_t end = 2;
  while (end + 1 < tokens.size() && !IsMark(tokens[end], MatrixPunctuation::Comma)) {
    end = IsMark(tokens[end], MatrixPunctuation::Open) ? CloseOf(tokens, end) + 1 : end + 1;
  }
  return {tokens.begin() + 2, tokens.begin() + static_cast<std::ptrdiff_t>(end)};
}

}  // namespace

std::optional<std::u16string> OrderOfUnknowns(std::string_view line, const Matrices& matrices,
                                              IntermediateMatrices& files,
                                              std::optional<double> answer) {
  auto tokens = TokenizeMatrixExpression(FoldCase(line, BaseMode::Decimal), answer);
  if (!tokens || CheckMatrixOrder(*tokens)) return std::nullopt;
  MatrixTokens coefficients = Coefficients(WithoutOuterParentheses(*std::move(tokens)));
  if (coefficients.empty()) return std::nullopt;
  const auto a = ReduceMatrixTokens(std::move(coefficients), matrices, files);
  if (!a) return std::nullopt;
  std::u16string order;
  for (const int unknown : UnknownsInRows(*a)) {
    if (!order.empty()) order += u", ";
    order += Widen(PrintInteger(unknown + 1));
  }
  return order.empty() ? std::nullopt : std::optional(order);
}

}  // namespace kav
