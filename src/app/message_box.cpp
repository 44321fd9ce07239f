#include "app/message_box.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <algorithm>

#include "app/app_texts.h"
#include "app/look.h"
#include "app/qt_text.h"

namespace kav {
namespace {

// Heights of letters that the sign and all margins take across.
constexpr int kBesideText = 8;

/// A box with letters as large as those of the screen that it speaks for. By itself a message box
/// breaks its text at a width that knows nothing of their size.
class ScaledBox final : public QMessageBox {
 public:
  ScaledBox(Icon icon, const QString& text, const QString& more, StandardButtons buttons,
            QWidget* parent)
      : QMessageBox(icon, ToQt(kApplicationName), text, buttons, parent) {
    // What is said may hold a file name or a line of the user's, which is not to be read as markup.
    setTextFormat(Qt::PlainText);
    if (!more.isEmpty()) setInformativeText(more);
    setPalette(ScreenPalette());
    if (parent != nullptr) area_ = PortraitArea(parent->window()->size()).size();
    setFont(ScreenFont(TextPixels(area_.height())));
    setStyle(ScreenStyle());
    for (QWidget* widget : findChildren<QWidget*>()) widget->setStyle(ScreenStyle());
    setIcon(icon);  // drawn anew, at the size that the style has by now
  }

 private:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::LayoutRequest) return QMessageBox::event(event);
    Fit();
    return true;
  }
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    Fit();
    if (parentWidget() == nullptr) return;
    const QWidget* window = parentWidget()->window();
    move(window->mapToGlobal(window->rect().center()) - rect().center());
  }

  void Fit() {
    const int pixels = font().pixelSize();
    for (QLabel* label : {findChild<QLabel*>("qt_msgbox_label"),
                          findChild<QLabel*>("qt_msgbox_informativelabel")}) {
      if (label == nullptr) continue;
      const QRect lines = fontMetrics().boundingRect(QRect(), 0, label->text());
      if (!label->wordWrap()) label->setWordWrap(true);
      label->setFixedWidth(
          std::min(lines.width() + pixels / 2, area_.width() - kBesideText * pixels));
    }
    layout()->setContentsMargins(pixels, pixels, pixels, pixels);
    layout()->activate();
    const int width = layout()->totalSizeHint().width();
    setFixedSize(width, layout()->totalHeightForWidth(width));
  }

  QSize area_{480, 640};
};

int Show(QWidget* parent, QMessageBox::Icon icon, std::u16string_view text,
         QMessageBox::StandardButtons buttons, std::u16string_view more = {}) {
  return ScaledBox(icon, ToQt(text), ToQt(more), buttons, parent).exec();
}

}  // namespace

void ShowStop(QWidget* parent, std::u16string_view text) {
  Show(parent, QMessageBox::Critical, text, QMessageBox::Ok);
}

void ShowNotice(QWidget* parent, std::u16string_view text) {
  Show(parent, QMessageBox::Warning, text, QMessageBox::Ok);
}

bool AskYesNo(QWidget* parent, std::u16string_view question, std::u16string_view more) {
  return Show(parent, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No, more) ==
         QMessageBox::Yes;
}

void ShowAbout(QWidget* parent) {
  Show(parent, QMessageBox::Information, kAbout, QMessageBox::Ok);
}

}  // namespace kav
