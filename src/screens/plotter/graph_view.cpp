#include "screens/plotter/graph_view.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "plotter/empty_curves.h"
#include "plotter/graph_model.h"
#include "plotter/graph_requests.h"
#include "plotter/plotter_texts.h"
#include "screens/plotter/graph_area_view.h"
#include "screens/plotter/graph_saving_view.h"
#include "screens/plotter/plotter_options_dlg.h"
#include "screens/widgets/bottom_menu_bar.h"
#include "screens/widgets/choice_box.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/result_uses.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

/// A menu entry that changes the range, and its keys. The menu shows the first key.
struct ChangeRow {
  RangeChange change;
  std::u16string_view text;
  std::array<const char*, 3> keys;
};

// On most keyboards '=' is the key of '+'.
constexpr std::array kChangeRows{
    ChangeRow{RangeChange::MoveLeft, kMoveLeftEntry, {"Ctrl+Left"}},
    ChangeRow{RangeChange::MoveRight, kMoveRightEntry, {"Ctrl+Right"}},
    ChangeRow{RangeChange::MoveUp, kMoveUpEntry, {"Ctrl+Up"}},
    ChangeRow{RangeChange::MoveDown, kMoveDownEntry, {"Ctrl+Down"}},
    ChangeRow{RangeChange::ZoomIn, kZoomInEntry, {"+", "Ctrl++", "="}},
    ChangeRow{RangeChange::ZoomOut, kZoomOutEntry, {"-", "Ctrl+-"}},
    ChangeRow{RangeChange::Reset, kResetEntry, {"Ctrl+0"}},
    ChangeRow{RangeChange::Undo, kUndoRangeEntry, {"Ctrl+Z"}},
};
/// An entry of the menu of the values.
struct CopyRow {
  ReadingPart part;
  std::u16string_view text;
  std::u16string_view tip;
};
constexpr std::array kCopyRows{
    CopyRow{ReadingPart::Point, kCopyPointEntry, kCopyPointTip},
    CopyRow{ReadingPart::X, kCopyXEntry, kCopyXTip},
    CopyRow{ReadingPart::Y, kCopyYEntry, kCopyYTip},
};

/// An entry that finds something on the curves.
struct RequestRow {
  GraphRequest request;
  std::u16string_view text;
  const char* key;
};
constexpr std::array kRequestRows{
    RequestRow{GraphRequest::Roots, kRootsEntry, "Ctrl+Shift+R"},
    RequestRow{GraphRequest::Extrema, kExtremaEntry, "Ctrl+Shift+E"},
    RequestRow{GraphRequest::Intersections, kIntersectionsEntry, "Ctrl+Shift+I"},
    RequestRow{GraphRequest::Slope, kSlopeEntry, "Ctrl+Shift+S"},
    RequestRow{GraphRequest::Area, kAreaEntry, "Ctrl+Shift+A"},
};

constexpr const char* kOptionsKey = "Ctrl+G";
constexpr const char* kCopyPictureKey = "Ctrl+Shift+C";

constexpr int kLinesOfResults = 3;

// Parts of what room there is for both.
constexpr int kSelectorShare = 5;
constexpr int kFieldShare = 3;

/// The least height of the plot, as a part of the window's.
constexpr double kPlotShare = 0.585;
/// The same beside letters larger than usual.
constexpr double kLeastPlotShare = 0.4;

QList<QKeySequence> Shortcuts(const ChangeRow& row) {
  QList<QKeySequence> keys;
  for (const char* key : row.keys) {
    if (key != nullptr) keys.append(QKeySequence(QLatin1String(key)));
  }
  return keys;
}

class CGraphView final : public Dialog {
 public:
  CGraphView(QWidget* parent, GraphInput input);

 private:
  void MakeMenu();
  void MakeCopies();
  void LayOut();
  void Connect();

  GraphAreaHooks Hooks();
  void OnCalculate();
  void OnOptions();
  void Find(GraphRequest request);
  void GoToFinding();
  void GoToCurve(int curves);
  void Select(int curve);
  void Tell(ChangeRefusal refusal);
  void Take(const std::optional<GraphReading>& reading);
  void ShowEmptyCurves();
  void ShareHeight();
  std::optional<std::u16string> Copied(ReadingPart part) const {
    return CopiedReading(reading_, part, results_->Selected());
  }
  void Copy(ReadingPart part);
  void RefreshCopies();
  void Refresh();

  bool eventFilter(QObject* watched, QEvent* event) override;
  void SetTextHeight(int text) override;
  void keyPressEvent(QKeyEvent* event) override;

  GraphModel model_;
  GraphReading reading_;
  std::vector<std::u16string> places_;  ///< of the lines, if they are findings
  GraphAreaView* area_;
  ChoiceBox* curves_ = new ChoiceBox(kCurveSelectorName);
  QLineEdit* x_ = new QLineEdit;
  DialogButton* calculate_ = new DialogButton(kCalculateCaption, kCalculateHelp);
  LabelList* results_ = new LabelList(kGraphResultsName);
  QCheckBox* trace_ = new QCheckBox(ToQt(kTraceCaption));
  DialogButton* save_ = new DialogButton(kSaveGraphCaption, kSaveGraphHelp);
  DialogButton* close_ = new DialogButton(kCloseCaption);
  QVBoxLayout* body_ = new QVBoxLayout;
  BottomMenuBar* menuBar_ = new BottomMenuBar(this);
  QAction* undo_ = nullptr;
  std::array<QAction*, kCopyRows.size()> copies_{};
};

CGraphView::CGraphView(QWidget* parent, GraphInput input)
    : Dialog(parent, kGraphTitle),
      model_(std::move(input)),
      area_(new GraphAreaView(model_, Hooks())) {
  SetPage(GuidePage::Graph);
  for (const GraphCurve& curve : model_.Input().curves) curves_->addItem(OneLine(curve.label));
  // However long the equations are, their beginnings are seen.
  curves_->KeepRoomFor({kBeginningOfCurve});
  curves_->setToolTip(curves_->currentText());
  x_->setAccessibleName(ToQt(kTracedXName));
  Explain(*trace_, kTraceHelp);
  MakeMenu();
  MakeCopies();
  LayOut();
  Connect();
  ShowEmptyCurves();
  Refresh();
  area_->setFocus();
}

void CGraphView::MakeMenu() {
  QMenu* menu = menuBar_->addMenu(ToQt(kGraphMenu));
  for (const ChangeRow& row : kChangeRows) {
    QAction* action = menu->addAction(ToQt(row.text));
    action->setShortcuts(Shortcuts(row));
    connect(action, &QAction::triggered, this,
            [this, change = row.change] { Tell(model_.Change(change)); });
    if (row.change == RangeChange::Undo) undo_ = action;
  }
  menu->addSeparator();
  QAction* options = menu->addAction(ToQt(kGraphOptionsEntry), this, &CGraphView::OnOptions);
  options->setShortcut(QKeySequence(QLatin1String(kOptionsKey)));
  menu->addSeparator();
  for (const RequestRow& row : kRequestRows) {
    QAction* find =
        menu->addAction(ToQt(row.text), this, [this, request = row.request] { Find(request); });
    find->setShortcut(QKeySequence(QLatin1String(row.key)));
  }
  menu->addSeparator();
  QAction* copy = menu->addAction(ToQt(kCopyPictureEntry), this, [this] { CopyGraph(model_); });
  copy->setShortcut(QKeySequence(QLatin1String(kCopyPictureKey)));
}

/// Shows what is found. A line that is chosen puts its x into the field.
void CGraphView::Find(GraphRequest request) {
  GraphFindings findings = FindOnGraph(model_, request, x_->text().toStdU16String());
  places_ = std::move(findings.places);
  reading_ = {x_->text().toStdU16String(), std::move(findings.lines), {}, std::nullopt};
  results_->Write(reading_.lines, reading_.selected);
  RefreshCopies();
  ShareHeight();
}

void CGraphView::GoToFinding() {
  const auto line = results_->Selected();
  if (!line || static_cast<std::size_t>(*line) >= places_.size()) return;
  const std::u16string place = places_[static_cast<std::size_t>(*line)];
  if (place.empty()) return;
  x_->setText(ToQt(place));
  x_->home(false);
  if (model_.Traces()) OnCalculate();
}

/// What is shown can be copied where it is shown.
void CGraphView::MakeCopies() {
  for (std::size_t i = 0; i < kCopyRows.size(); ++i) {
    const CopyRow& row = kCopyRows[i];
    copies_[i] = new QAction(ToQt(row.text), this);
    copies_[i]->setStatusTip(ToQt(row.tip));
    connect(copies_[i], &QAction::triggered, this, [this, part = row.part] { Copy(part); });
  }
  copies_.front()->setShortcut(QKeySequence::Copy);
  for (QWidget* shown : {static_cast<QWidget*>(area_), static_cast<QWidget*>(results_)}) {
    shown->addActions({copies_.begin(), copies_.end()});
    shown->installEventFilter(this);
  }
  // So that screen readers offer the menu; what opens is the dialog's own.
  area_->setContextMenuPolicy(Qt::ActionsContextMenu);
  x_->installEventFilter(this);
  results_->setAccessibleDescription(ToQt(kGraphResultsHint));
  connect(results_, &QListWidget::itemSelectionChanged, this, &CGraphView::RefreshCopies);
  connect(results_, &QListWidget::itemSelectionChanged, this, &CGraphView::GoToFinding);
}

bool CGraphView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == x_) {
    const bool isCopy = event->type() == QEvent::KeyPress &&
                        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy);
    // The field copies what is selected in it, and knows of nothing else.
    if (!isCopy || x_->hasSelectedText()) return false;
    Copy(ReadingPart::Point);
    return true;
  }
  if (event->type() != QEvent::ContextMenu) return Dialog::eventFilter(watched, event);
  QMenu* menu = MakePopUp();
  menu->addActions({copies_.begin(), copies_.end()});
  menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
  return true;
}

void CGraphView::Copy(ReadingPart part) {
  if (const auto text = Copied(part)) CopyText(*text);
}

void CGraphView::RefreshCopies() {
  for (std::size_t i = 0; i < kCopyRows.size(); ++i) {
    copies_[i]->setEnabled(Copied(kCopyRows[i].part).has_value());
  }
}

void CGraphView::LayOut() {
  auto* at = new QHBoxLayout;
  at->addWidget(curves_, kSelectorShare);
  at->addWidget(new QLabel(ToQt(kTracedXCaption)));
  at->addWidget(x_, kFieldShare);
  at->addWidget(calculate_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(trace_);
  buttons->addStretch();
  for (DialogButton* button : {save_, close_}) buttons->addWidget(button);
  body_->addWidget(area_, 1);
  body_->addLayout(at);
  body_->addWidget(results_);
  body_->addLayout(buttons);
  auto* all = new QVBoxLayout(this);
  all->addLayout(body_, 1);
  all->addWidget(menuBar_);
  calculate_->setDefault(true);
}

void CGraphView::Connect() {
  connect(curves_, &QComboBox::currentIndexChanged, this, &CGraphView::Select);
  OpenDoor(*x_, DoorKind::Number);
  connect(calculate_, &QPushButton::clicked, this, &CGraphView::OnCalculate);
  connect(trace_, &QCheckBox::toggled, this, [this](bool isOn) {
    model_.SetTraces(isOn);
    area_->MoveMarker();
  });
  connect(save_, &QPushButton::clicked, this, [this] { SaveGraph(this, model_); });
  connect(close_, &QPushButton::clicked, this, &QDialog::accept);
}

GraphAreaHooks CGraphView::Hooks() {
  return {[this](GraphPlace place) { Take(model_.Tap(place)); },
          [this](GraphPlace from, GraphPlace to) {
            Tell(model_.ZoomToBox(from, to, devicePixelRatioF()));
          },
          [this](RangeChange change) { Tell(model_.Change(change)); },
          [this](int columns) { Take(model_.Step(columns)); },
          [this](int curves) { GoToCurve(curves); }};
}

void CGraphView::OnCalculate() {
  if (AsksFirst(*x_, [this] { OnCalculate(); })) return;
  const auto reading = model_.Calculate(x_->text().toStdU16String());
  if (reading) return Take(*reading);
  ShowStop(this, reading.error());
  x_->setFocus();
  x_->selectAll();
}

void CGraphView::OnOptions() {
  const auto chosen = RunPlotterOptions(this, {model_.Range(), model_.Options(), model_.Angle()});
  if (chosen) Tell(model_.Apply(chosen->range, chosen->options));
}

void CGraphView::GoToCurve(int curves) {
  const int wanted = curves_->currentIndex() + curves;
  if (wanted >= 0 && wanted < curves_->count()) curves_->setCurrentIndex(wanted);
}

void CGraphView::Select(int curve) {
  model_.SelectCurve(curve);
  curves_->setToolTip(curves_->currentText());
  if (reading_.selected) {
    reading_.selected = curve;
    results_->Write(reading_.lines, reading_.selected);
    RefreshCopies();
  }
  area_->MoveMarker();
}

void CGraphView::Tell(ChangeRefusal refusal) {
  Refresh();
  if (refusal) ShowStop(this, *refusal);
}

void CGraphView::Take(const std::optional<GraphReading>& reading) {
  if (!reading) return;
  reading_ = *reading;
  places_.clear();
  x_->setText(ToQt(reading_.x));
  x_->home(false);  // the first digits matter most
  results_->Write(reading_.lines, reading_.selected);
  RefreshCopies();
  ShareHeight();
  area_->MoveMarker();
}

void CGraphView::ShowEmptyCurves() {
  reading_ = EmptyCurves(model_.Input());
  results_->Write(reading_.lines, reading_.selected);
}

void CGraphView::ShareHeight() {
  const bool hasResults = !reading_.lines.empty();
  // The letters are as large as when there are results: only the plot changes.
  const int without = results_->minimumHeight() + body_->spacing();
  const double plot = std::max(kPlotShare / std::max(TextShare(), 1.0), kLeastPlotShare);
  area_->KeepHeight(qRound(height() * plot) + (hasResults ? 0 : without));
  if (results_->isHidden() != hasResults) return;
  results_->setVisible(hasResults);
  // At once: the next tap may follow before the layout would be done.
  if (isVisible()) layout()->activate();
}

void CGraphView::Refresh() {
  undo_->setEnabled(model_.CanUndo());
  RefreshCopies();
  area_->Redraw();
}

void CGraphView::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  menuBar_->SetLetters(font());
  // The plot is as wide as possible, and the menu bar as wide as the window, as on every screen.
  layout()->setContentsMargins(0, 0, 0, 0);
  layout()->setSpacing(0);
  // Not from `text`: the margin is the same in every face, however small its letters have to be.
  const int margin = TextPixels(height()) / 4;
  body_->setContentsMargins(margin, margin, margin, margin);
  const int line = results_->fontMetrics().height() + text / 6;
  results_->setFixedHeight(kLinesOfResults * line + 2 * results_->frameWidth());
  ShareHeight();
}

void CGraphView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) return menuBar_->Enter();
  Dialog::keyPressEvent(event);
}

}  // namespace

void RunGraphView(QWidget* parent, GraphInput input) {
  CGraphView(parent, std::move(input)).RunModal();
}

}  // namespace kav
