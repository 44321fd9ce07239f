#include "app/dialog.h"

#include <QGroupBox>
#include <QLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <algorithm>

#include "app/look.h"
#include "app/qt_text.h"
#include "common/number_text.h"

namespace kav {
namespace {

constexpr QSize kSmallest(180, 240);
constexpr std::size_t kLongestLine = 400;

/// The part of the desktop that a dialog opened by `opener` covers.
QRect AreaOver(const QWidget& opener) {
  const QWidget* window = opener.window();
  const QRect area = PortraitArea(window->size());
  return {window->mapToGlobal(area.topLeft()), area.size()};
}

void SetMargins(QLayout* layout, int pixels) {
  if (layout != nullptr) layout->setContentsMargins(pixels, pixels, pixels, pixels);
}

}  // namespace

Dialog::Dialog(QWidget* parent, std::u16string_view title) : QDialog(parent) {
  setWindowTitle(ToQt(title));
  setPalette(ScreenPalette());
  setMinimumSize(kSmallest);
  setModal(true);
}

bool Dialog::RunModal() {
  if (parentWidget() != nullptr) setGeometry(AreaOver(*parentWidget()));
  return exec() == Accepted;
}

QMenu* Dialog::MakePopUp() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setStyle(ScreenStyle());
  menu->setFont(font());
  return menu;
}

void Dialog::showEvent(QShowEvent* event) {
  for (QWidget* widget : findChildren<QWidget*>()) widget->setStyle(ScreenStyle());
  Scale();
  // At once: else the first picture would be of widgets laid out for the font before.
  if (layout() != nullptr) layout()->activate();
  QDialog::showEvent(event);
}

void Dialog::resizeEvent(QResizeEvent* event) {
  Scale();
  QDialog::resizeEvent(event);
}

void Dialog::Scale() {
  const int text = std::max(TextPixels(height()), 1);
  if (font().pixelSize() == text) return;
  setFont(ScreenFont(text));
  for (auto* edit : findChildren<QPlainTextEdit*>())
    edit->document()->setDocumentMargin(text / 4.0);
  for (QLayout* layout : findChildren<QLayout*>()) layout->setSpacing(text / 3);
  for (const auto* box : findChildren<QGroupBox*>()) SetMargins(box->layout(), text / 4);
  SetMargins(layout(), text / 2);
}

DialogButton::DialogButton(std::u16string_view caption) : QPushButton(ToQt(caption)) {
  setAttribute(Qt::WA_Hover);
}

QString OneLine(std::u16string_view text) {
  return QString::fromStdU16String(Shortened(text, kLongestLine));
}

}  // namespace kav
