// The function plotter's screen: the widgets that show its model.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "line/history_walk.h"
#include "plotter/plotter_model.h"
#include "screens/plotter/range_fields_view.h"
#include "screens/widgets/key_screen.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace kav {

class EquationInputView;
class GraphSideView;

/// Loads the settings when it is made and writes them into the frame's store when it is destroyed;
/// each change of the equations is also saved to disk. Enter adds the input; Ctrl+Enter, and Enter
/// in a field of the range, plots. Up walks from the ends of the input through earlier ones. What
/// is typed goes to the input, unless a field has the focus.
class CPlotterDlg final : public KeyScreenOf<PlotterKey, PlotterModel> {
 public:
  explicit CPlotterDlg(Frame& frame);
  ~CPlotterDlg() override;

  void Keep() override { model_.Save(); }

 private:
  void MakeList();
  void OrderTabs();
  QCheckBox* NewOptionBox(std::u16string_view caption, std::u16string_view help,
                          PlotterOption option);

  void OnKey(PlotterKey key) override;
  void OnEnter();
  void TakeLine() override;
  void Refresh() override;
  void ShowEquations();
  GuidePage Page() const override { return GuidePage::Plotter; }
  void LayOut(const DialogUnits& units) override;
  void Save();

  // What a key asks for.
  using KeyScreenOf::Do;
  void CarryOut(const PlotterRequest& request) override;
  void OnYes(PlotterKey key) override;
  void Do(const PlotterRefusal& request);
  void Do(const OpenGraph& request);
  void Do(const AskAboutTyped& request);
  std::optional<TypedEquation> AnswerTo(const AskAboutTyped& request);

  std::vector<MenuEntry> MoreToEdit() override;
  void OnReplace();
  void OnSwitchCurve();

  // The graph beside the keys of a wide window.
  QRect ScreenPart() const override;
  QRect GraphPart() const;
  void MakeSide();
  void LayOutSide();
  void FollowTyping();
  void ShowSide();
  void SwitchCurve(std::size_t place);
  void TakeRange(const PlotRange& range);
  void paintEvent(QPaintEvent* event) override;

  // The Edit menu works on the field that had the focus last, or else on the input.
  void Edit(EditCommand command) override;
  bool CanEdit(EditCommand command) const override;

  bool WalkHistory(const QKeyEvent& event);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  PlotterModel model_;
  EquationInputView* input_;
  QComboBox* list_;
  RangeFieldsView range_;
  QCheckBox* grid_;
  QCheckBox* line_;
  QLineEdit* edited_ = nullptr;  ///< null: the input
  HistoryWalk walk_;
  GraphSideView* side_ = nullptr;  ///< made when it is first seen
  bool follows_ = false;           ///< the side is about to be shown anew
};

/// The function plotter's screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakePlotterScreen(Frame& frame);

}  // namespace kav
