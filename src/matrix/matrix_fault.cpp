#include "matrix/matrix_fault.h"

#include <cstddef>
#include <string>
#include <utility>

#include "common/number_text.h"
#include "macros/line_evaluator.h"
#include "macros/line_fault.h"
#include "matrix/live_matrix.h"
#include "matrix/matrix_functions.h"
#include "matrix/matrix_line.h"

namespace kav {
namespace {

bool HasValue(std::u16string_view line, const MatrixLineContext& context) {
  const std::u16string_view text = TrimBlanks(line);
  if (IsMatrixExpression(text)) {
    return LiveOrder(text, context.matrices, context.modes.answer, kEffortAfterEquals).has_value();
  }
  return context.takesNumbers && EvaluateLine(Narrow(text), context.modes, context.macros);
}

KnownWords WordsOfMatrixLines(const MatrixLineContext& context) {
  KnownWords words = WordsOf(context.modes);
  for (const MatrixFunctionRow& row : MatrixFunctions()) {
    words.push_back({Widen(row.name), PieceKind::Function});
  }
  AddMacroNames(context.macros, words);
  return words;
}

}  // namespace

LineFault MatrixFaultOf(std::u16string_view line, std::optional<TextPlace> place,
                        const MatrixLineContext& context) {
  if (place) place->position += static_cast<std::size_t>(TrimBlanks(line).data() - line.data());
  auto mended = MendOf(line, WordsOfMatrixLines(context), BaseMode::Decimal,
                       [&](std::u16string_view tried) { return HasValue(tried, context); });
  return MakeFault(line, place, std::move(mended));
}

}  // namespace kav
