// The matrix screen without its pixels: matrices, line, keys, menus, clipboard, history, settings.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "common/number_text.h"
#include "display/display_settings.h"
#include "line/converter_link.h"
#include "line/expression_line.h"
#include "line/history.h"
#include "line/key_request.h"
#include "line/line_mend.h"
#include "line/screen_menus.h"
#include "macros/macro_store.h"
#include "matrix/matrix_answers.h"
#include "matrix/matrix_board.h"
#include "matrix/matrix_edits.h"
#include "matrix/matrix_keypad.h"
#include "matrix/matrix_properties.h"
#include "matrix/matrix_value.h"
#include "settings/past_lines.h"
#include "settings/settings_store.h"

namespace kav {

/// Show the size dialog with the current size, each from 1 to kLargestMatrix; then call Resize.
struct AskMatrixSize {
  int rows;
  int columns;
};
struct AutofitColumns {};  ///< then SetColumnWidths with what the grid found

/// On Yes to the question of ClearCells: ClearCells with what is selected.
using MatrixRequest =
    std::variant<Nothing, ShowMenu<MatrixKey>, AskFirst<MatrixKey>, AskMatrixSize, TellStop,
                 TellNotice, AskSaveFile, AskLoadFile, AutofitColumns, OpenMacroEditor,
                 OpenMacroList, OpenConverter, RecallMemoryVariable, OpenConstants>;

/// Holds the whole state of the screen. The store must outlive it.
class MatrixModel {
 public:
  /// Loads the settings and the history; the matrices are empty and [M1] is shown.
  explicit MatrixModel(SettingsStore& store);

  /// Writes settings and history into the store.
  void Save() const;

  // The two lines.
  const ExpressionLine& Line() const { return line_; }
  void SetLine(std::u16string text, Selection selection) { line_.Set(std::move(text), selection); }
  /// An operator typed while all of the line is selected goes on with that line, as its key does.
  /// False: nothing was done, and `typed` is a character like others.
  bool TypeOperator(char16_t typed);
  /// The answer or message of the last number expression, or what was found of a matrix; empty
  /// before the first and after a matrix expression, whose answer it would stand above, unless
  /// there is something to know of that.
  std::u16string ResultText() const { return answers_.Text(); }
  /// What `line` comes to, before "=" says it: a number, or the order of a matrix. nullopt if there
  /// is nothing to say, or the user does not want it.
  std::optional<std::u16string> LiveResult(std::u16string_view line) const {
    return answers_.Live(line);
  }
  const History& PastLines() const { return history_; }
  /// About the line, if the last "=" failed and the line is still that one.
  const std::optional<LineFault>& Fault() const { return answers_.FaultIn(line_.Text()); }
  /// Writes the mended line and evaluates it; does nothing without a mend.
  MatrixRequest TakeMend();

  // What is copied and kept.
  /// The result in plain digits; nullopt if there is none or a message in its place.
  std::optional<std::u16string> CopiedResult() const { return answers_.CopiedResult(); }
  /// The line that was answered, and its answer; nullopt if the result line shows none.
  std::optional<std::u16string> CopiedLine() const { return answers_.CopiedLine(); }
  /// The memory register as the result line would show it; empty while it is 0.
  std::u16string MemoryText() const;

  // The keys and the menus that they open.
  std::u16string_view Caption(MatrixKey key) const;
  bool IsEnabled(MatrixKey key) const;
  MatrixRequest Press(MatrixKey key);
  /// The menu that `key` opens now; empty for a key without one.
  Menu MenuOf(MatrixKey key) const;
  /// An id that the menu of `key` does not offer does nothing.
  MatrixRequest Choose(MatrixKey key, int id);

  /// Finds `property`, one of MatrixProperties, of the shown matrix.
  MatrixRequest Find(const MatrixProperty& property);

  // What dialogs bring back. A number beyond the range of double is told, and not inserted.
  void TakeConverter(const ConverterOutcome& outcome) { converter_.Take(outcome, line_); }
  void TakeMacro(int index);
  MatrixRequest TakeVariable(std::u16string_view value);
  MatrixRequest TakeConstant(std::u16string_view value);
  /// Reads the display settings again after their dialog changed them; matrices keep their sizes.
  void TakeDisplaySettings();

  /// What the last "=" evaluated, for the history of all sessions; nullopt if it did nothing.
  const std::optional<PastLine>& Evaluated() const { return answers_.Evaluated(); }
  // Both replace the selection; an answer only if it is a number.
  void TakePastLine(const PastLine& past) { line_.InsertText(Widen(past.line)); }
  void TakePastAnswer(const PastLine& past);

  // The matrices and the one that is shown.
  const Matrices& AllMatrices() const { return board_.All(); }
  int Shown() const { return board_.ShownIndex(); }
  const MatrixValue& ShownMatrix() const { return board_.Shown(); }
  /// The user's choice of another tab.
  void Show(int index) { board_.Show(index); }
  const ColumnWidths& Widths() const { return board_.Widths(); }
  void SetColumnWidths(const ColumnWidths& widths) { board_.SetWidths(widths); }
  CellAlignment Alignment() const { return settings_.alignment; }
  /// Whether the text of a cell is not exactly a number; false for an empty cell.
  bool IsMarked(int row, int column) const;
  /// The number that a cell is read as, in the matrix display format; empty for an empty cell.
  std::u16string CellHint(int row, int column) const;

  /// All matrices, with what can be undone of them: for the next time of the screen.
  MatrixBoard& Board() { return board_; }
  /// The number of a column's pixels in a new matrix.
  int NewColumnWidth() const { return settings_.columnWidth; }

  // Editing the shown matrix.
  /// Copies the text of a cell into the line, all of it selected; an empty cell changes nothing.
  /// Rows and columns count from 0. Cells of [M Ans] can be edited, too.
  void BeginCellEdit(int row, int column);
  void SetCell(int row, int column, std::u16string text) {
    board_.SetCell(row, column, std::move(text));
  }
  /// The same with what the user typed; why it is refused, and then the cell stays as it is.
  std::optional<std::u16string> TypeCell(int row, int column, const std::u16string& text);
  void ClearCells(const CellRange& cells) { board_.ClearCells(cells); }
  void Resize(int rows, int columns) { board_.Resize(rows, columns); }
  /// The texts of `cells`, a line for each row, with TABs between them. For a single cell, all of
  /// the matrix.
  std::u16string CopyCells(const CellRange& cells) const { return board_.CopyCells(cells); }
  /// Empties `cells`; their texts, as CopyCells has them for more than one.
  std::u16string CutCells(const CellRange& cells) { return board_.CutCells(cells); }
  /// Writes the numbers of `text` into the shown matrix from a cell on; the matrix grows for them
  /// as far as it can. Nothing comes in if one of them is no number. Returns what to tell the user
  /// if something did not.
  std::optional<std::u16string> PasteCells(int row, int column, std::u16string_view text) {
    return board_.PasteCells(row, column, text);
  }
  /// The same from the first of `cells` on, but a single number fills all of them.
  std::optional<std::u16string> PasteInto(const CellRange& cells, std::u16string_view text) {
    return board_.PasteInto(cells, text);
  }
  bool CanUndo() const { return board_.CanUndo(); }
  bool CanRedo() const { return board_.CanRedo(); }
  /// Both also show the matrix that changes.
  void Undo() { board_.Undo(); }
  void Redo() { board_.Redo(); }

  /// Both return what to tell the user if they failed.
  std::optional<std::u16string> SaveTo(const std::string& path) { return board_.SaveTo(path); }
  std::optional<std::u16string> LoadFrom(const std::string& path) { return board_.LoadFrom(path); }

 private:
  void Write(MatrixKey key);
  MatrixRequest Evaluate();
  MatrixRequest Insert(double value);
  MatrixRequest ChooseTool(int id);
  MatrixRequest ChooseMatrixTool(int id);
  MatrixRequest ConverterRequest() const;

  SettingsStore& store_;
  MacroStore macros_;
  DisplaySettings settings_;
  ConverterLink converter_;
  History history_;
  MatrixBoard board_;
  MatrixAnswers answers_;
  ExpressionLine line_;
};

}  // namespace kav
