#include "screens/plotter/graph_side_view.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "plotter/empty_curves.h"
#include "plotter/plotter_texts.h"
#include "screens/plotter/graph_area_view.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

/// x, and the values of as many curves as there can be.
constexpr int kLinesBeside = 4;

/// Of the height of letters: the room around the parts, and between them.
constexpr double kRoomAroundSide = 0.6;
constexpr double kRoomBetweenSide = 0.4;
/// The box of a check box takes so much of the width, in heights of letters.
constexpr int kBoxWidth = 3;

std::optional<RangeChange> ChangeByKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Undo)) return RangeChange::Undo;
  if ((key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != 0) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return RangeChange::ZoomIn;
    case Qt::Key_Minus:
      return RangeChange::ZoomOut;
    default:
      return std::nullopt;
  }
}

/// What the engine says of most curves that are empty.
constexpr std::u16string_view kLongestFault = u"Expression error.";

/// The height of letters, at most `most`, at which `line` is not wider than `room` pixels.
int PixelsForLineOf(const std::u16string& line, int most, int room) {
  int pixels = most;
  while (pixels > 1 && QFontMetrics(ScreenFont(pixels)).horizontalAdvance(ToQt(line)) > room) {
    --pixels;
  }
  return pixels;
}

/// Whether both look the same before anything is zoomed.
bool AreSameGraphs(const GraphInput& a, const GraphInput& b) {
  return a.range == b.range && a.angle == b.angle && a.options == b.options &&
         std::equal(
             a.curves.begin(), a.curves.end(), b.curves.begin(), b.curves.end(),
             [](const GraphCurve& one, const GraphCurve& two) { return one.label == two.label; });
}

}  // namespace

GraphSideView::GraphSideView(QWidget* screen, GraphSideHooks hooks)
    : QWidget(screen),
      hooks_(std::move(hooks)),
      model_(GraphInput()),
      area_(NewArea()),
      results_(new LabelList(kGraphResultsName)),
      trace_(new QCheckBox(ToQt(kTraceCaption))),
      takeRange_(new QPushButton(ToQt(kTakeRangeCaption))) {
  setAccessibleName(ToQt(kSideGraphName));
  setAutoFillBackground(true);
  area_->installEventFilter(this);
  results_->setStyle(ScreenStyle());
  trace_->setStyle(ScreenStyle());
  Explain(*trace_, kTraceHelp);
  takeRange_->setStyle(ScreenStyle());
  takeRange_->setFocusPolicy(Qt::TabFocus);
  Explain(*takeRange_, kTakeRangeHelp);
  connect(trace_, &QCheckBox::toggled, this, &GraphSideView::SetTraces);
  connect(takeRange_, &QPushButton::clicked, this, [this] { hooks_.takeRange(model_.Range()); });
  MakeBoxes();
  AddParts();
}

GraphAreaView* GraphSideView::NewArea() {
  return new GraphAreaView(model_, {[this](GraphPlace place) { Take(model_.Tap(place)); },
                                    [this](GraphPlace from, GraphPlace to) {
                                      Tell(model_.ZoomToBox(from, to, devicePixelRatioF()));
                                    },
                                    [this](RangeChange change) { Tell(model_.Change(change)); },
                                    [this](int columns) {
                                      if (!model_.Input().curves.empty())
                                        Take(model_.Step(columns));
                                    },
                                    [this](int curves) { GoToCurve(curves); }});
}

void GraphSideView::MakeBoxes() {
  for (std::size_t place = 0; place < curves_.size(); ++place) {
    auto* box = new QCheckBox;
    box->setStyle(ScreenStyle());
    box->setAccessibleName(ToQt(CurveBoxName(place)));
    box->setFocusPolicy(Qt::TabFocus);
    box->hide();
    connect(box, &QCheckBox::toggled, this, [this, place] { hooks_.switchCurve(place); });
    curves_[place] = box;
  }
}

void GraphSideView::AddParts() {
  auto* all = new QVBoxLayout(this);
  all->addWidget(area_, 1);
  for (QCheckBox* box : curves_) all->addWidget(box, 0, Qt::AlignLeft);
  all->addWidget(results_);
  auto* last = new QHBoxLayout;
  last->addWidget(trace_);
  last->addStretch();
  last->addWidget(takeRange_);
  all->addLayout(last);
}

void GraphSideView::LayOut(const QRect& place, int pixels) {
  setFont(ScreenFont(pixels));
  const int around = qRound(pixels * kRoomAroundSide);
  layout()->setContentsMargins(around, around, around, around);
  layout()->setSpacing(qRound(pixels * kRoomBetweenSide));
  const int room = place.width() - 2 * around - 2 * results_->frameWidth() - pixels;
  results_->setFont(ScreenFont(PixelsForLineOf(CurveIsEmpty(0, kLongestFault), pixels, room)));
  results_->setFixedHeight(kLinesBeside * (results_->fontMetrics().height() + pixels / 6) +
                           2 * results_->frameWidth());
  setGeometry(place);
}

void GraphSideView::Show(const Expected<GraphInput, std::u16string>& graph,
                         const EquationList& equations) {
  ShowCurves(equations);
  if (!graph) return Say({{}, {graph.error()}, {u""}, std::nullopt});
  if (drawn_ && AreSameGraphs(*drawn_, *graph)) return;
  Draw(*graph);
  drawn_ = *graph;
  if (graph->curves.empty()) {
    Say({{}, {std::u16string(kNothingToDraw)}, {u""}, std::nullopt});
  } else {
    Say(EmptyCurves(*graph));
  }
}

void GraphSideView::Draw(const GraphInput& graph) {
  const bool isRangeKept = drawn_ && drawn_->range == graph.range;
  const PlotRange range = model_.Range();
  const PlotArea area = model_.Area();
  model_ = GraphModel(graph);
  model_.SetArea(area);
  // What was zoomed to stays while an equation is mended.
  if (isRangeKept) model_.Apply(range, graph.options);
  curve_ = std::clamp(curve_, 0, std::max(static_cast<int>(graph.curves.size()) - 1, 0));
  model_.SelectCurve(curve_);
  SetTraces();
  area_->Redraw();
}

void GraphSideView::ShowCurves(const EquationList& equations) {
  const int room = width() - kBoxWidth * fontMetrics().height();
  for (std::size_t place = 0; place < curves_.size(); ++place) {
    QCheckBox& box = *curves_[place];
    const bool isThere = place < equations.All().size();
    box.setVisible(isThere);
    if (!isThere) continue;
    const QString label = OneLine(CurveLabel(place, equations.All()[place]));
    QString shown = fontMetrics().elidedText(label, Qt::ElideRight, room);
    box.setText(shown.replace(QLatin1Char('&'), QLatin1String("&&")));
    box.setAccessibleDescription(label);
    const QSignalBlocker notTapped(box);
    box.setChecked(equations.IsOn(place));
  }
}

void GraphSideView::Say(const GraphReading& reading) {
  std::vector<std::u16string> lines = reading.lines;
  if (!reading.x.empty()) lines.insert(lines.begin(), std::u16string(kTracedXPrefix) + reading.x);
  results_->Write(lines, std::nullopt);
}

void GraphSideView::Take(const std::optional<GraphReading>& reading) {
  if (!reading) return;
  Say(*reading);
  area_->MoveMarker();
}

void GraphSideView::Tell(ChangeRefusal refusal) {
  area_->Redraw();
  if (refusal) ShowStop(this, *refusal);
}

void GraphSideView::GoToCurve(int curves) {
  const int wanted = curve_ + curves;
  if (wanted < 0 || wanted >= static_cast<int>(model_.Input().curves.size())) return;
  curve_ = wanted;
  model_.SelectCurve(curve_);
  area_->MoveMarker();
}

void GraphSideView::SetTraces() {
  model_.SetTraces(trace_->isChecked() && !model_.Input().curves.empty());
  area_->MoveMarker();
}

bool GraphSideView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto change = ChangeByKey(*static_cast<QKeyEvent*>(event));
  if (change) Tell(model_.Change(*change));
  return change.has_value();
}

}  // namespace kav
