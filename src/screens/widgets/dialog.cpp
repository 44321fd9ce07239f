#include "screens/widgets/dialog.h"

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLayout>
#include <QPlainTextEdit>
#include <QScreen>
#include <algorithm>

#include "common/number_text.h"
#include "screens/widgets/access_view.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/guide_caller.h"
#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

constexpr std::size_t kLongestLine = 400;

/// `area` moved to the right or the left of `window`, whose frame it keeps clear of, if the desktop
/// has room there; else beside the screen, over what stands there, if that is on the desktop.
QRect Beside(const QWidget& window, const QRect& area) {
  const QRect desktop = window.screen()->availableGeometry();
  const QRect frame = window.frameGeometry();
  const int gap = frame.width() - window.width();
  for (const int x : {frame.right() + 1 + gap, frame.left() - gap - area.width()}) {
    const QRect place(QPoint(x, window.geometry().y()), area.size());
    if (desktop.contains(place)) return place;
  }
  const QRect screen = ScreenPartOver(window);
  if (screen.width() < window.width()) {
    const QRect place = area.translated(screen.right() + 1 - area.left(), 0);
    if (desktop.contains(place)) return place;
  }
  return area;
}

void SetMargins(QLayout* layout, int pixels) {
  if (layout != nullptr) layout->setContentsMargins(pixels, pixels, pixels, pixels);
}

void GiveStyle(const QWidget& dialog) {
  for (QWidget* widget : dialog.findChildren<QWidget*>()) widget->setStyle(ScreenStyle());
}

}  // namespace

Dialog::Dialog(QWidget* parent, std::u16string_view title) : QDialog(parent) {
  OfferWidgetsToScreenReaders();
  setWindowTitle(ToQt(title));
  Wear(*this, Attire::Window);
  setMinimumSize(kSmallestWindow);
  setModal(true);
}

bool Dialog::RunModal() {
  if (parentWidget() != nullptr) PlaceOver(AreaOver(*parentWidget()));
  return exec() == Accepted;
}

void Dialog::ShowBeside(const QWidget& neighbour) {
  setModal(false);
  const QWidget& window = *neighbour.window();
  isVisible() ? Scale() : PlaceOver(Beside(window, AreaOver(window)));
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) return OpenGuide();
  QDialog::keyPressEvent(event);
}

void Dialog::OpenGuide() {
  std::optional<GuidePage> page;
  for (QWidget* window = this; window != nullptr; window = window->parentWidget()) {
    if (auto* screen = dynamic_cast<GuideCaller*>(window)) return screen->OpenGuide(this, page);
    const auto* dialog = dynamic_cast<const Dialog*>(window);
    if (dialog != nullptr && !page) page = dialog->page_;
  }
}

void Dialog::TakeOnlyNeededHeight() {
  takesNeededHeight_ = true;
  setMinimumHeight(0);
}

void Dialog::PlaceOver(const QRect& area) {
  if (!takesNeededHeight_) return setGeometry(area);
  areaHeight_ = area.height();
  resize(area.size());
  GiveStyle(*this);
  Scale();
  layout()->activate();
  QRect place(QPoint(), QSize(area.width(), std::min(layout()->sizeHint().height(), areaHeight_)));
  place.moveCenter(area.center());
  setGeometry(place);
}

QMenu* Dialog::MakePopUp() {
  return NewPopUp(this, font());
}

bool Dialog::event(QEvent* event) {
  const bool isKnown = QDialog::event(event);
  // Something was shown, or has another text now.
  if (event->type() == QEvent::LayoutRequest && isVisible()) ScaleDown();
  return isKnown;
}

void Dialog::showEvent(QShowEvent* event) {
  GiveStyle(*this);
  Scale();
  // At once: else the first picture would be of widgets laid out for the font before.
  if (layout() != nullptr) layout()->activate();
  // Who came by the keyboard sees at once where it is.
  const QWidget* opener = parentWidget();
  if (opener != nullptr && opener->window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
    setAttribute(Qt::WA_KeyboardFocusChange);
  }
  QDialog::showEvent(event);
}

void Dialog::resizeEvent(QResizeEvent* event) {
  // Before it is shown, its parts have not got their style.
  if (isVisible()) Scale();
  QDialog::resizeEvent(event);
}

void Dialog::SetTextHeight(int text) {
  if (font().pixelSize() == text) return;
  setFont(ScreenFont(text));
  for (auto* edit : findChildren<QPlainTextEdit*>())
    edit->document()->setDocumentMargin(text / 4.0);
  for (QLayout* layout : findChildren<QLayout*>()) layout->setSpacing(text / 3);
  for (const auto* box : findChildren<QGroupBox*>()) SetMargins(box->layout(), text / 4);
  SetMargins(layout(), text / 2);
}

void Dialog::Scale() {
  SetTextHeight(std::max(TextPixels(areaHeight_ > 0 ? areaHeight_ : height()), 1));
  ScaleDown();
}

void Dialog::ScaleDown() {
  const int before = font().pixelSize();
  int tooLarge = before;
  double excess = Excess();
  while (excess > 1 && font().pixelSize() > 1) {
    const int text = font().pixelSize();
    tooLarge = text;
    // Everything shrinks nearly as the text does, so the guess is right, or too large by a pixel or
    // two.
    SetTextHeight(std::clamp(static_cast<int>(text / excess), 1, text - 1));
    excess = Excess();
  }
  if (TextShare() > 1 && font().pixelSize() < before) GrowBelow(tooLarge);
}

void Dialog::GrowBelow(int tooLarge) {
  int fitting = font().pixelSize();
  while (fitting + 1 < tooLarge) {
    const int middle = (fitting + tooLarge) / 2;
    SetTextHeight(middle);
    (Excess() > 1 ? tooLarge : fitting) = middle;
  }
  SetTextHeight(fitting);
}

/// What the parts need at least of the dialog's width or height, by what there is.
double Dialog::Excess() const {
  if (layout() == nullptr) return 0;
  layout()->activate();
  const QSize needed = layout()->totalMinimumSize();
  const int high = layout()->hasHeightForWidth() ? layout()->totalMinimumHeightForWidth(width())
                                                 : needed.height();
  // So much higher than the dialog may the parts be: they have free room above and below texts.
  constexpr double kGive = 1.03;
  return std::max(static_cast<double>(needed.width()) / width(), high / (kGive * height()));
}

void ScaleOpenDialogs() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* dialog = dynamic_cast<Dialog*>(window);
    if (dialog != nullptr && dialog->isVisible()) dialog->Scale();
  }
}

DialogButton::DialogButton(std::u16string_view caption, std::u16string_view help)
    : QPushButton(ToQt(caption)) {
  setAttribute(Qt::WA_Hover);
  if (!help.empty()) Explain(*this, help);
}

QSize DialogButton::minimumSizeHint() const {
  const int gap = std::max(fontMetrics().height() / 4, 2);
  return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * gap, gap);
}

int LeastHeightOfList(const QWidget& list, int lines) {
  // Of letters, not by the face: one with high lines would take the room that its letters need.
  constexpr double kLine = 1.2;
  return TextShare() > 1 ? qRound(lines * kLine * list.font().pixelSize()) : 0;
}

QString OneLine(std::u16string_view text) {
  return QString::fromStdU16String(Shortened(text, kLongestLine));
}

}  // namespace kav
