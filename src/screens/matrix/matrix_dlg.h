// The matrix screen: the widgets that show its model.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "matrix/matrix_model.h"
#include "screens/matrix/matrix_grid_view.h"
#include "screens/widgets/line_screen.h"

namespace kav {

class MatrixTabs;

/// Loads the settings when it is made and writes them into the frame's store when it is destroyed;
/// after each "=" it also has them saved to disk.
class CMatrixDlg final : public KeyScreenOf<MatrixKey, MatrixModel, LineScreen> {
 public:
  explicit CMatrixDlg(Frame& frame);
  ~CMatrixDlg() override;

  void Keep() override { model_.Save(); }

  /// Another screen may take this one's place: the matrices are kept. Before the end it asks.
  bool MayLeave(LeaveReason reason) override;

 private:
  void OnKey(MatrixKey key) override;
  void OnEquals() override { OnKey(MatrixKey::Equals); }
  void OnMend() override;
  void OnClear() override { OnKey(MatrixKey::Clear); }
  bool OnOperator(char16_t typed) override;
  void AddPropertiesMenu();
  void OnProperty(const MatrixProperty& property);
  void OnTab(int index);
  void TakeLine() override;
  void Refresh() override;
  QRect Area() const override;
  GuidePage Page() const override { return GuidePage::Matrix; }
  void LayOut(const DialogUnits& units) override;
  std::optional<std::u16string> LiveResult(std::u16string_view line) const override {
    return model_.LiveResult(line);
  }
  HistoryWalk::Lines EarlierLines() const override { return TypedLines(model_.PastLines()); }
  void TakePast(const PastLine& past, PastPart part) override;
  void Cover() override;
  void Uncover() override;
  std::optional<std::u16string> CopiedResult() const override { return model_.CopiedResult(); }
  std::optional<std::u16string> CopiedLine() const override { return model_.CopiedLine(); }
  void ShowMatrix();

  // What a key asks for.
  using KeyScreenOf::Do;
  void CarryOut(const MatrixRequest& request) override;
  void OnYes(MatrixKey) override { grid_.ClearCells(); }
  void Do(const AskMatrixSize& request);
  void Do(const AskSaveFile& request);
  void Do(const AskLoadFile& request);
  void Do(const AutofitColumns& request);
  void Tell(const std::optional<std::u16string>& failure);

  void BeginCellEdit(int row, int column);

  // The Edit menu and its keys work on the grid while that has the focus.
  bool EditsGrid() const;
  void Edit(EditCommand command) override;
  bool CanEdit(EditCommand command) const override;
  bool OnGridKey(const QKeyEvent& event);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  // Undo and redo work on what was edited last, the line or a matrix, wherever the focus is.
  bool UndoesLine(EditCommand command) const;
  void UndoOrRedo(EditCommand command);
  void ShowNeighbour(int step);

  MatrixModel model_;
  MatrixTabs* tabs_;
  MatrixGridView grid_;
  bool editsGrid_ = false;       ///< the grid had the focus later than the line
  bool isLineNewer_ = false;     ///< the line was edited later than a matrix
  std::size_t seenChanges_ = 0;  ///< of the matrices
  bool undoneLine_ = false;      ///< the last undo was one of the line
};

/// The matrix screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakeMatrixScreen(Frame& frame);

}  // namespace kav
