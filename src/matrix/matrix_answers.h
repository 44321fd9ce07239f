// What "=" makes of the lines of the matrix screen.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "display/display_settings.h"
#include "engine/calc_modes.h"
#include "line/key_request.h"
#include "line/line_mend.h"
#include "macros/live_result.h"
#include "macros/macro_store.h"
#include "matrix/cell_notes.h"
#include "matrix/matrix_board.h"
#include "matrix/matrix_properties.h"
#include "matrix/matrix_value.h"
#include "matrix/temporary_matrices.h"
#include "settings/past_lines.h"
#include "settings/settings_store.h"

namespace kav {

/// What the user is told of a line beside its answer.
using MatrixOutcome = std::variant<Nothing, TellStop, TellNotice>;

/// For a matrix that no line can take and no file keep: names it, and the cell to mend if one is
/// empty.
TellStop TellInvalid(const Matrices& matrices, int index);

/// Evaluates lines over the matrices of a board, and keeps what the last one came to. All that it
/// is made with must outlive it; the display settings may change.
class MatrixAnswers {
 public:
  MatrixAnswers(SettingsStore& store, const MacroStore& macros, const DisplaySettings& settings,
                MatrixBoard& board);

  AngleUnit Angle() const { return modes_.angleUnit; }
  void ToggleAngle() { modes_.angleUnit = OtherAngleUnit(modes_.angleUnit); }
  /// False while [M Ans] is shown: a number beside it would look like a part of that answer.
  bool TakesNumbers() const;

  /// `line` as it was typed. The board takes the answer of a matrix expression.
  MatrixOutcome Evaluate(const std::u16string& line);
  /// Finds `property` of the shown matrix, while `line` is in the line. A number stands where those
  /// of lines do, with what it is; the board takes a matrix as the answer.
  MatrixOutcome Find(const MatrixProperty& property, const std::u16string& line);
  /// See MatrixModel::LiveResult.
  std::optional<std::u16string> Live(std::u16string_view line) const;

  // Of the last line.
  /// The number or message, with what it is about, as long as the matrices are as they were then;
  /// or what is to be known of the matrix that was answered, while that is shown.
  std::u16string Text() const;
  const std::optional<double>& Last() const { return last_; }
  const std::optional<PastLine>& Evaluated() const { return evaluated_; }
  /// Writes a number that is shown again, in the display settings of now.
  void ShowAgain();
  std::optional<std::u16string> CopiedResult() const;
  std::optional<std::u16string> CopiedLine() const;
  /// Its failure, if `line` is still that one.
  const std::optional<LineFault>& FaultIn(std::u16string_view line) const;
  void ForgetFault() { fault_.reset(); }

 private:
  MatrixOutcome EvaluateMatrix(const std::u16string& line);
  void EvaluateNumber(const std::u16string& line);
  MatrixOutcome TakeProperty(const MatrixProperty& property, PropertyValue value);
  void Note(std::u16string_view text, std::u16string_view answer);
  LineFault FaultOfLine(std::u16string_view line, std::optional<TextPlace> place) const;

  SettingsStore& store_;
  const MacroStore& macros_;
  const DisplaySettings& settings_;
  MatrixBoard& board_;
  CalcModes modes_;  ///< with the last number answered, whatever failed since
  CellNotes notes_;
  TemporaryMatrices files_;
  std::u16string text_;   ///< a number or a message
  std::u16string about_;  ///< stands before that, or alone; empty for most lines
  std::optional<PastLine> evaluated_;
  std::optional<AnsweredLine> answered_;
  std::optional<LineFault> fault_;
  std::size_t answeredChanges_ = 0;  ///< of the matrices by then
  std::optional<double> last_;       ///< nullopt after a failure and before the first
};

}  // namespace kav
