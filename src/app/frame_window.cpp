#include "app/frame_window.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <utility>

#include "app/settings_transfer.h"
#include "screens/converter/converter_dlg.h"
#include "screens/converter/user_conversion_dlg.h"
#include "screens/display/display_settings_dlg.h"
#include "screens/help/guide_dlg.h"
#include "screens/help/keys_dlg.h"
#include "screens/macros/macro_editor_dlg.h"
#include "screens/macros/macro_list_dlg.h"
#include "screens/matrix/matrix_dlg.h"
#include "screens/memory/constants_dlg.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/plotter/plotter_dlg.h"
#include "screens/scientific/scientific_dlg.h"
#include "screens/statistics/one_variable_dlg.h"
#include "screens/statistics/two_variable_dlg.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/screen.h"
#include "settings/keys.h"

namespace kav {
namespace {

constexpr std::array kScreens{
    ScreenKind{ScreenMode::Scientific, kScientificScreen, MakeScientificScreen},
    ScreenKind{ScreenMode::Matrix, kMatrixScreen, MakeMatrixScreen},
    ScreenKind{ScreenMode::OneVariable, kOneVariableScreen, MakeOneVariableScreen},
    ScreenKind{ScreenMode::TwoVariable, kTwoVariableScreen, MakeTwoVariableScreen},
    ScreenKind{ScreenMode::Plotter, kPlotterScreen, MakePlotterScreen},
};

/// How long the frame waits to be painted: some desktops never show it.
constexpr int kPatienceMs = 200;

/// The main one first.
std::vector<QRect> Desktops() {
  std::vector<QRect> desktops{QGuiApplication::primaryScreen()->availableGeometry()};
  for (const QScreen* screen : QGuiApplication::screens()) {
    desktops.push_back(screen->availableGeometry());
  }
  return desktops;
}

WindowPlace StoredPlace(const SettingsStore& store) {
  const std::vector<QRect> desktops = Desktops();
  std::optional<WindowPlace> place = ReadPlace(store.Get(kWindowGeometry));
  if (!place) return {FirstPlace(desktops.front())};
  return {MovedOntoDesktop(place->rect, desktops), place->isMaximized};
}

std::int32_t StoredMode(const SettingsStore& store) {
  const std::int32_t mode = store.Get(kMode);
  return mode == kNoModeStored ? static_cast<std::int32_t>(ScreenMode::Scientific) : mode;
}

/// The screen that a stored number stands for.
ScreenMode ModeFromSetting(std::int32_t stored) {
  const bool isNamed = stored >= 1 && stored <= static_cast<std::int32_t>(ScreenMode::TwoVariable);
  return isNamed ? static_cast<ScreenMode>(stored) : ScreenMode::Matrix;
}

}  // namespace

std::span<const ScreenKind> AllScreens() {
  return kScreens;
}

ScreenDialogs AllDialogs(SettingsStore& store) {
  ScreenDialogs dialogs;
  dialogs.displaySettings = [&store](QWidget* parent, DisplayPage first) {
    return RunDisplaySettings(parent, store, first);
  };
  dialogs.unitEditor = [&store](QWidget* parent) { RunUserConversions(parent, store); };
  dialogs.macroEditor = [&store](QWidget* parent) { RunMacroEditor(parent, store); };
  dialogs.macroList = [&store](QWidget* parent) { return RunMacroList(parent, store); };
  dialogs.converter = [&store](QWidget* parent, const ConverterInput& input) {
    return RunConverter(parent, store, input);
  };
  dialogs.storeVariable = [&store](QWidget* parent, const std::u16string& value) {
    RunStoreVariable(parent, store, value);
  };
  dialogs.recallVariable = [&store](QWidget* parent) { return RunRecallVariable(parent, store); };
  dialogs.constants = [](QWidget* parent) { return RunConstants(parent); };
  dialogs.keys = RunKeys;
  dialogs.guide = [guide = std::make_shared<Guide>()](QWidget* parent, GuidePage page) {
    guide->Open(parent, page);
  };
  return dialogs;
}

FrameWindow::FrameWindow(SettingsStore& store, std::span<const ScreenKind> screens,
                         ScreenDialogs dialogs, FrameHooks hooks)
    // Without a title, an animation or an entry among the desktop's windows: the screen is what the
    // desktop knows as the window of the program.
    : QWidget(nullptr, Qt::SplashScreen | Qt::BypassWindowManagerHint),
      store_(store),
      screens_(screens),
      dialogs_(std::move(dialogs)),
      hooks_(std::move(hooks)),
      place_(StoredPlace(store)),
      mode_(StoredMode(store)) {
  store_.Set(kVersion, kVersionNumber);
  setWindowTitle(ToQt(kApplicationName));
  UseColours(LoadLookSettings(store_).colours);
  Wear(*this, Attire::Window);
  TakePlace(*this, {place_.rect});
  // While the desktop is still bringing the frame up, there is time to make the first screen.
  QMetaObject::invokeMethod(this, &FrameWindow::PrepareScreen, Qt::QueuedConnection);
  QTimer::singleShot(kPatienceMs, this, &FrameWindow::StartSoon);
}

FrameWindow::~FrameWindow() {
  CloseAll();
  KeepPlace();
}

void FrameWindow::paintEvent(QPaintEvent*) {
  constexpr QPoint kLoadingPlace(15, 15);
  QPainter painter(this);
  const QRect rest = rect().adjusted(kLoadingPlace.x(), kLoadingPlace.y(), 0, 0);
  painter.drawText(rest, Qt::AlignLeft | Qt::AlignTop, ToQt(kLoading));
  StartSoon();
}

void FrameWindow::PrepareScreen() {
  if (prepared_ || Shown() != nullptr) return;
  prepared_ = KindOf(mode_).make(*this);
  TakePlace(*prepared_, place_);
  prepared_->installEventFilter(this);
}

void FrameWindow::StartSoon() {
  QMetaObject::invokeMethod(this, &FrameWindow::Start, Qt::QueuedConnection);
}

void FrameWindow::Start() {
  if (std::exchange(isStarted_, true)) return;
  SwitchMode();
  hide();
  KeepFrameOnDesktop();
  hooks_.started();
}

void FrameWindow::KeepFrameOnDesktop() {
  QWidget* screen = Shown();
  if (isFramed_ || screen == nullptr || screen->windowHandle() == nullptr) return;
  const QMargins margins = screen->windowHandle()->frameMargins();
  if (margins.isNull()) return;
  isFramed_ = true;
  if (screen->isMaximized() || screen->isFullScreen()) return;
  const QRect place = PlaceInFrame(screen->windowHandle()->frameGeometry(), margins, Desktops());
  if (place != QRect(screen->pos(), screen->size())) TakePlace(*screen, {place});
}

void FrameWindow::SwitchMode() {
  const std::size_t old = activeSlot_;
  if (Shown() != nullptr) place_ = PlaceOf(*Shown());
  activeSlot_ = 1 - old;  // a slot with nothing to show yet
  PrepareScreen();
  slots_[activeSlot_] = std::move(prepared_);
  Shown()->show();
  // Showing posts an update of each widget. Handled only after the window's first painting, they
  // would make a second of it.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
  CloseScreen(old);
}

void FrameWindow::ComeToFront() {
  QWidget* screen = Shown();
  if (screen == nullptr) return;
  screen->setWindowState(screen->windowState() & ~Qt::WindowMinimized);
  screen->show();
  QWidget* box = QApplication::activeModalWidget();
  QWidget* front = box != nullptr ? box : screen;
  front->raise();
  front->activateWindow();
}

std::vector<ScreenChoice> FrameWindow::ScreensBeside(ScreenMode own) const {
  std::vector<ScreenChoice> others;
  for (const ScreenKind& kind : screens_) {
    if (kind.mode != own) others.push_back({kind.mode, kind.caption});
  }
  return others;
}

void FrameWindow::KeepPlace() {
  store_.Set(kMode, mode_);
  store_.Set(kWindowGeometry, PrintPlace(place_));
}

void FrameWindow::ExportSettings(QWidget* parent) {
  place_ = PlaceOf(*Shown());
  KeepPlace();
  const auto text = hooks_.exportSettings();
  text ? SaveExport(parent, *text) : ShowStop(parent, text.error());
}

void FrameWindow::ImportSettings(QWidget* parent) {
  auto text = AskForImport(parent);
  if (!text) return;
  const auto take = [this, toml = *std::move(text)] {
    if (!isQuitting_) TakeImported(toml);
  };
  QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
}

/// The screen saves what it leaves behind before the new settings stand in its place.
void FrameWindow::TakeImported(const std::string& toml) {
  place_ = PlaceOf(*Shown());
  // For a moment there is no window: that does not mean the end.
  Shown()->setAttribute(Qt::WA_QuitOnClose, false);
  CloseScreen(activeSlot_);
  const auto refusal = hooks_.importSettings(toml);
  UseColours(LoadLookSettings(store_).colours);
  mode_ = StoredMode(store_);
  SwitchMode();
  if (refusal) ShowStop(Shown(), *refusal);
}

void FrameWindow::ChangeMode(ScreenMode mode) {
  mode_ = static_cast<std::int32_t>(mode);
  const auto change = [this] {
    if (!isQuitting_) SwitchMode();
  };
  QMetaObject::invokeMethod(this, change, Qt::QueuedConnection);
}

void FrameWindow::Exit() {
  const auto exit = [this] {
    if (isQuitting_) return;
    CloseAll();
    hooks_.finished();
  };
  QMetaObject::invokeMethod(this, exit, Qt::QueuedConnection);
}

void FrameWindow::ScaleText(TextStep step) {
  const int percent = NextTextScale(TextScaleFromSetting(store_.Get(kTextScale)), step);
  store_.Set(kTextScale, percent);
  GrowWindow(percent);
  if (auto* screen = dynamic_cast<Screen*>(Shown())) screen->LayOutAll();
  ScaleOpenDialogs();
  SaveStore();
}

void FrameWindow::GrowWindow(int percent) {
  QWidget* window = Shown();
  if (window == nullptr || window->isMaximized() || window->isFullScreen()) return;
  constexpr int kWhole = 100;
  const int taken = std::clamp(store_.Get(kWindowScale), kLeastTextScale, kMostTextScale);
  // A user who gave the window another size means that size, at this scale.
  if (window->size() != grown_) first_ = window->size() * kWhole / taken;
  const QMargins margins =
      window->windowHandle() != nullptr ? window->windowHandle()->frameMargins() : QMargins();
  const QRect desktop = window->screen()->availableGeometry();
  const GrownSize grown = Grown(first_, percent, desktop.marginsRemoved(margins).size());
  grown_ = grown.size;
  store_.Set(kWindowScale, grown.percent);
  QRect frame = window->frameGeometry();
  frame.setSize(grown.size.grownBy(margins));
  TakePlace(*window, {PlaceInFrame(frame, margins, Desktops())});
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event) {
  // Desktops put their frame around a window some time after it is shown, and then move it.
  const bool mayBeFramed = event->type() == QEvent::Move || event->type() == QEvent::WindowActivate;
  if (mayBeFramed && !isFramed_ && isStarted_ && watched == Shown()) {
    QMetaObject::invokeMethod(this, &FrameWindow::KeepFrameOnDesktop, Qt::QueuedConnection);
  }
  // However the user closes the screen, it means the end; only the frame itself just closes one.
  const bool isUsersClose = event->type() == QEvent::Close && watched == Shown() && !isQuitting_;
  if (!isUsersClose) return QWidget::eventFilter(watched, event);
  event->ignore();
  auto* screen = dynamic_cast<Screen*>(watched);
  if (screen == nullptr || screen->MayBeLeft(LeaveReason::Ending)) Exit();
  return true;
}

const ScreenKind& FrameWindow::KindOf(std::int32_t mode) const {
  const auto kind = std::find_if(screens_.begin(), screens_.end(), [mode](const ScreenKind& k) {
    return k.mode == ModeFromSetting(mode);
  });
  return kind != screens_.end() ? *kind : screens_.front();
}

void FrameWindow::CloseScreen(std::size_t slot) {
  // A screen saves what it leaves behind when it is destroyed.
  std::unique_ptr<QWidget> screen = std::move(slots_[slot]);
  if (screen) screen->close();
}

void FrameWindow::CloseAll() {
  hide();
  isQuitting_ = true;
  if (Shown() != nullptr) place_ = PlaceOf(*Shown());
  prepared_.reset();
  CloseScreen(1);
  CloseScreen(0);
}

}  // namespace kav
