// The graph beside the plotter's keys in a wide window.
#include <QPainter>

#include "screens/plotter/equation_input_view.h"
#include "screens/plotter/graph_side_view.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/widgets/look.h"
#include "screens/widgets/side_places.h"

namespace kav {

QRect CPlotterDlg::ScreenPart() const {
  return PlacesBeside(size(), SideNeighbour::Column).screen;
}

QRect CPlotterDlg::GraphPart() const {
  return PlacesBeside(size(), SideNeighbour::Column).side;
}

void CPlotterDlg::paintEvent(QPaintEvent* event) {
  KeyScreenOf::paintEvent(event);
  if (GraphPart().isEmpty()) return;
  QPainter(this).fillRect(GraphPart(), palette().color(QPalette::Window));
  // To make and draw it would keep the user from the keys.
  if (side_ == nullptr)
    QMetaObject::invokeMethod(this, &CPlotterDlg::MakeSide, Qt::QueuedConnection);
}

void CPlotterDlg::MakeSide() {
  if (side_ != nullptr || GraphPart().isEmpty()) return;
  side_ = new GraphSideView(this, {[this](std::size_t place) { SwitchCurve(place); },
                                   [this](const PlotRange& range) { TakeRange(range); }});
  LayOutSide();
  ShowSide();
}

void CPlotterDlg::LayOutSide() {
  if (side_ == nullptr) return;
  const QRect part = GraphPart();
  side_->setVisible(!part.isEmpty());
  if (part.isEmpty()) return;
  side_->LayOut(part, TextPixels(Area().height()));
  FollowTyping();
}

/// Shows what is typed once the events at hand are done, so that no key waits for it.
void CPlotterDlg::FollowTyping() {
  if (side_ == nullptr || follows_ || GraphPart().isEmpty()) return;
  follows_ = true;
  QMetaObject::invokeMethod(this, &CPlotterDlg::ShowSide, Qt::QueuedConnection);
}

void CPlotterDlg::ShowSide() {
  follows_ = false;
  if (side_ == nullptr) return;
  TakeLine();
  side_->Show(model_.LiveGraph(), model_.Equations());
}

void CPlotterDlg::SwitchCurve(std::size_t place) {
  TakeLine();
  model_.SwitchCurve(place);
  ShowEquations();
  FollowTyping();
  Save();
}

void CPlotterDlg::TakeRange(const PlotRange& range) {
  TakeLine();
  model_.TakeRange(range);
  Refresh();
  Save();
}

}  // namespace kav
