// The grid of the matrix screen.
#pragma once

#include <QHelpEvent>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "matrix/matrix_model.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/matrix/matrix_places.h"
#include "screens/widgets/screen.h"

namespace kav {

/// What happens in the grid.
struct MatrixGridHooks {
  /// An edit of the cell begins, counted from 0 as the matrix counts them.
  std::function<void(int row, int column)> beginEdit;
  /// The matrix was edited: everything that shows it has to do so anew.
  std::function<void()> changed;
};

/// Shows the matrix that a model shows, in a grid with the numbers of rows and columns, and edits
/// it there.
class MatrixGridView final {
 public:
  /// Makes the grid in `parent`, which owns it. `model` must outlive the view.
  MatrixGridView(QWidget* parent, MatrixModel& model, MatrixGridHooks hooks);
  ~MatrixGridView();
  MatrixGridView(const MatrixGridView&) = delete;
  MatrixGridView& operator=(const MatrixGridView&) = delete;

  CGridCtrl& Grid() const { return *grid_; }

  /// To be called when the model may show something else.
  void Show();
  void LayOut(const MatrixPlaces& places);
  /// What the shown matrix needs.
  GridNeeds Needs() const;
  /// Whether in a window of that size it should stand elsewhere than it does.
  bool NeedsOtherPlace(QSize window) const;
  void FitColumns();
  /// The whole text of a cell; whether the mouse is at one.
  bool ShowHint(const QHelpEvent& event);

  /// Ends an edit that is going on; whether its text was taken. If it was not, the user is told,
  /// and the edit goes on.
  bool FinishEdit() {
    grid_->FinishEdit();
    return !refused_;
  }
  // The commands of the Edit menu, but for undo and redo.
  void Edit(EditCommand command);
  bool CanEdit(EditCommand command) const;
  void ClearCells();

 private:
  /// The grid's header row and column stand before the cells of the matrix.
  static constexpr int kHeaders = 1;

  /// What was typed into a cell and is refused.
  struct RefusedEdit {
    GridCell cell;
    QString text;
    std::u16string why;
  };

  void SetHooks();
  void TypeCell(GridCell cell, const QString& text);
  void TellRefusedEdit();

  void Rebuild();
  GridContent ContentOf(GridCell cell) const;
  void WriteWidths();
  void TakeWidths();
  void TakeWidth(int column, int width);
  void Scale();
  void ScaleToTexts();
  void GrowColumns();
  int ShownWidth(int column) const;
  int WidthOfTexts() const;
  ColumnWidths& Fitted() { return fitted_[static_cast<std::size_t>(model_.Shown())]; }

  std::optional<CellRange> SelectedCells() const;
  void CopyCells() const;
  void CutCells();
  void PasteCells(const QString& pasted);
  void PasteText(const std::u16string& text);
  void DropOn(GridCell cell, const QString& text);
  void SelectAll();

  MatrixModel& model_;
  MatrixGridHooks hooks_;
  CGridCtrl* grid_;
  MatrixPlaces places_;
  /// The widths that columns got to fit their texts; 0 for others.
  std::array<ColumnWidths, kMatrixCount> fitted_{};
  /// How much wider columns are shown than they are, to show their texts.
  ColumnWidths grown_{};
  std::optional<int> inGrid_;  ///< the matrix that the grid was built for
  std::optional<RefusedEdit> refused_;
  std::u16string declined_;  ///< a cell's text whose comma is to stay as it is
};

}  // namespace kav
