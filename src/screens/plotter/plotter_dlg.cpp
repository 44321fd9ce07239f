#include "screens/plotter/plotter_dlg.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <array>
#include <utility>
#include <variant>

#include "plotter/plotter_texts.h"
#include "screens/plotter/equation_input_view.h"
#include "screens/plotter/graph_view.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {

namespace {

constexpr const char* kReplaceKey = "F2";
constexpr const char* kSwitchKey = "F8";

}  // namespace

CPlotterDlg::CPlotterDlg(Frame& frame)
    : KeyScreenOf(model_, frame, QSize(kScreenWidth, kScreenHeight)),
      model_(frame.Store()),
      input_(new EquationInputView(this)),
      list_(new QComboBox(this)),
      // Only typing changes a stored text: a field may show less than all of it.
      range_(this,
             [this](RangeField field, std::u16string text) {
               model_.SetRangeText(field, std::move(text));
               FollowTyping();
             }),
      grid_(NewOptionBox(kGridCaption, kGridHelp, PlotterOption::Grid)),
      line_(NewOptionBox(kLineCaption, kLineHelp, PlotterOption::Line)) {
  MakeList();
  AddKeys(SpotsOf(PlotterKeyRows()));
  OrderTabs();
  AddMenus(ScreenMode::Plotter, DisplayPage::Normal, [] {});
  connect(new QShortcut(QKeySequence(QLatin1String(kReplaceKey)), this), &QShortcut::activated,
          this, &CPlotterDlg::OnReplace);
  connect(new QShortcut(QKeySequence(QLatin1String(kSwitchKey)), this), &QShortcut::activated, this,
          &CPlotterDlg::OnSwitchCurve);
  connect(&input_->Formula(), &QPlainTextEdit::textChanged, this, &CPlotterDlg::FollowTyping);
  CPlotterDlg::Refresh();
}

CPlotterDlg::~CPlotterDlg() {
  model_.Save();
}

QCheckBox* CPlotterDlg::NewOptionBox(std::u16string_view caption, std::u16string_view help,
                                     PlotterOption option) {
  auto* box = new QCheckBox(ToQt(caption), this);
  Explain(*box, help);
  box->setStyle(ScreenStyle());
  // Like a key, it leaves the caret where it is when it is tapped.
  box->setFocusPolicy(Qt::TabFocus);
  connect(box, &QCheckBox::toggled, this, [this, option](bool isOn) {
    const bool wasOn =
        option == PlotterOption::Grid ? model_.Options().hasGrid : model_.Options().hasLines;
    if (isOn == wasOn) return;
    TakeLine();
    model_.Toggle(option);
    Refresh();
  });
  return box;
}

void CPlotterDlg::MakeList() {
  list_->setAccessibleName(ToQt(kEquationListName));
  list_->setStyle(ScreenStyle());
  list_->view();  // made now, it gets the look of the screen
  for (auto* part : list_->findChildren<QWidget*>()) part->setStyle(ScreenStyle());
  const auto onChoice = [this](int place) {
    model_.ChooseEquation(static_cast<std::size_t>(place));
    Refresh();
  };
  connect(list_, &QComboBox::currentIndexChanged, this, onChoice);
  // To choose the chosen one again writes it into the input again.
  connect(list_, &QComboBox::activated, this, onChoice);
}

void CPlotterDlg::OrderTabs() {
  input_->Formula().installEventFilter(this);
  for (const RangeField field : kRangeFields) range_.Of(field).installEventFilter(this);
  const std::array<QWidget*, 8> round{
      &input_->Formula(),           list_, &range_.Of(RangeField::XMin),
      &range_.Of(RangeField::XMax), grid_, &range_.Of(RangeField::YMin),
      &range_.Of(RangeField::YMax), line_};
  for (std::size_t i = 1; i < round.size(); ++i) setTabOrder(round[i - 1], round[i]);
}

void CPlotterDlg::OnKey(PlotterKey key) {
  const bool takesLine =
      key == PlotterKey::Add && AsksFirst(*input_, [this] { OnKey(PlotterKey::Add); });
  const bool takesAll =
      key == PlotterKey::Plot && AsksFirst(*this, [this] { OnKey(PlotterKey::Plot); });
  if (takesLine || takesAll) return;
  TakeLine();
  const PlotterRequest request = model_.Press(key);
  Refresh();
  // Before a graph is opened, which may stay open for long.
  if (key == PlotterKey::Add || key == PlotterKey::Plot) Save();
  CarryOut(request);
}

void CPlotterDlg::OnEnter() {
  if (AsksFirst(*input_, [this] { OnEnter(); })) return;
  TakeLine();
  const std::optional<PlotterRefusal> refusal = model_.Add();
  Refresh();
  Save();
  if (refusal) Do(*refusal);
}

void CPlotterDlg::Save() {
  model_.Save();
  ParentFrame().SaveStore();
}

void CPlotterDlg::TakeLine() {
  model_.SetInput(input_->Formula().Line());
}

void CPlotterDlg::Refresh() {
  input_->Formula().Write(model_.Input());
  ShowEquations();
  range_.Show(model_.Range());
  grid_->setChecked(model_.Options().hasGrid);
  line_->setChecked(model_.Options().hasLines);
  RefreshKeys();
  FollowTyping();
  input_->setFocus();
}

void CPlotterDlg::ShowEquations() {
  const EquationList& equations = model_.Equations();
  const QSignalBlocker noChoice(list_);
  list_->clear();
  for (std::size_t place = 0; place < equations.All().size(); ++place) {
    list_->addItem(OneLine(model_.ItemText(place)));
  }
  list_->setCurrentIndex(equations.Selected() ? static_cast<int>(*equations.Selected()) : -1);
  list_->setEnabled(!equations.IsEmpty());
}

void CPlotterDlg::LayOut(const DialogUnits& units) {
  Keys().setGeometry(rect());
  Keys().LayOut(units);
  input_->setGeometry(units.Pixels(UnitsOf(kEquationInputPlace)));
  input_->FitText();
  list_->setGeometry(units.Pixels(UnitsOf(kEquationListPlace)));
  range_.LayOut(units);
  grid_->setGeometry(units.Pixels(UnitsOf(kGridBoxPlace)));
  line_->setGeometry(units.Pixels(UnitsOf(kLineBoxPlace)));
  const QFont font = ScreenFont(range_.FittingText(Keys().TextHeight()));
  range_.SetFont(font);
  list_->setFont(font);
  for (QCheckBox* box : {grid_, line_}) box->setFont(font);
  LayOutSide();
}

void CPlotterDlg::CarryOut(const PlotterRequest& request) {
  std::visit([this](const auto& what) { Do(what); }, request);
}

void CPlotterDlg::Do(const PlotterRefusal& request) {
  ShowStop(this, request.text);
  if (!request.focus) return input_->setFocus();
  range_.Enter(*request.focus);
}

void CPlotterDlg::OnYes(PlotterKey) {
  model_.DeleteEquation();
  Save();
}

void CPlotterDlg::Do(const OpenGraph& request) {
  RunGraphView(this, request.input);
  Refresh();
}

/// nullopt: the user gives up.
std::optional<TypedEquation> CPlotterDlg::AnswerTo(const AskAboutTyped& request) {
  if (!request.onNo) {
    return AskYesNo(this, request.question) ? std::optional(request.onYes) : std::nullopt;
  }
  switch (AskYesNoCancel(this, request.question)) {
    case Decision::Yes:
      return request.onYes;
    case Decision::No:
      return request.onNo;
    case Decision::Cancel:
      break;
  }
  return std::nullopt;
}

void CPlotterDlg::Do(const AskAboutTyped& request) {
  const auto typed = AnswerTo(request);
  if (!typed) return input_->setFocus();
  const PlotterRequest next = model_.PlotWith(*typed);
  Refresh();
  Save();
  CarryOut(next);
}

std::vector<MenuEntry> CPlotterDlg::MoreToEdit() {
  return {{kReplaceEquationEntry, [this] { OnReplace(); }, QKeySequence(QLatin1String(kReplaceKey)),
           [this] { return model_.CanReplace(); }, kReplaceEquationTip},
          {kSwitchCurveEntry, [this] { OnSwitchCurve(); }, QKeySequence(QLatin1String(kSwitchKey)),
           [this] { return model_.CanReplace(); }, kSwitchCurveTip}};
}

void CPlotterDlg::OnReplace() {
  if (!model_.CanReplace() || AsksFirst(*input_, [this] { OnReplace(); })) return;
  TakeLine();
  const std::optional<PlotterRefusal> refusal = model_.Replace();
  Refresh();
  Save();
  if (refusal) Do(*refusal);
}

void CPlotterDlg::OnSwitchCurve() {
  if (const auto place = model_.Equations().Selected()) SwitchCurve(*place);
}

void CPlotterDlg::Edit(EditCommand command) {
  if (edited_ != nullptr) return EditLine(*edited_, command);
  input_->Edit(command);
}

bool CPlotterDlg::CanEdit(EditCommand command) const {
  return edited_ != nullptr ? CanEditLine(*edited_, command) : input_->CanEdit(command);
}

/// Whether `event`, pressed in the input, was a step to an earlier or a later one.
bool CPlotterDlg::WalkHistory(const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  FormulaView& input = input_->Formula();
  const ExpressionLine line = input.Line();
  if (event.key() == Qt::Key_Down) {
    const auto later = walk_.Down(line);
    if (later) input.Write(*later);
    return later.has_value();
  }
  if (event.key() != Qt::Key_Up) return false;
  const auto lines = [this] { return TypedLines(model_.PastLines()); };
  const ExpressionLine earlier = walk_.Up(line, lines);
  // Within the line, the caret goes from row to row.
  if (earlier.Text() == line.Text() && !input.IsInFirstRow()) return false;
  input.Write(earlier);
  return true;
}

bool CPlotterDlg::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) edited_ = qobject_cast<QLineEdit*>(watched);
  if (event->type() == QEvent::KeyPress) {
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    if (watched == &input_->Formula() && WalkHistory(pressed)) return true;
    // The letter of a key that is disabled, and so does not answer to Alt, would be written.
    return pressed.modifiers() == Qt::AltModifier;
  }
  return KeyScreen::eventFilter(watched, event);
}

void CPlotterDlg::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      const bool plots =
          range_.Has(focusWidget()) || (event->modifiers() & Qt::ControlModifier) != 0;
      return plots ? OnKey(PlotterKey::Plot) : OnEnter();
    }
    case Qt::Key_Escape:
      // Out of a field one only goes back.
      return range_.Has(focusWidget()) ? input_->setFocus() : OnKey(PlotterKey::Clear);
    default:
      break;
  }
  if (focusWidget() == &input_->Formula() || range_.Has(focusWidget()) || !IsTyping(*event)) {
    return KeyScreen::keyPressEvent(event);
  }
  input_->setFocus();
  QCoreApplication::sendEvent(&input_->Formula(), event);
}

std::unique_ptr<QWidget> MakePlotterScreen(Frame& frame) {
  return std::make_unique<CPlotterDlg>(frame);
}

}  // namespace kav
