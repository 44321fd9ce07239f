#include "screens/widgets/message_box.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/widgets/app_texts.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

// Heights of letters that the sign and all margins take across.
constexpr int kBesideText = 8;

/// Letters are made smaller by this part of their height, until they are small enough.
constexpr int kSteps = 16;

/// What the sign beside a text says.
std::u16string_view NameOfSign(QMessageBox::Icon icon) {
  if (icon == QMessageBox::Critical) return kStopSign;
  if (icon == QMessageBox::Warning) return kWarningSign;
  return icon == QMessageBox::Question ? kQuestionSign : kInformationSign;
}

/// A box with letters as large as those of the screen that it speaks for. By itself a message box
/// breaks its text at a width that knows nothing of their size.
class ScaledBox final : public QMessageBox {
 public:
  ScaledBox(Icon icon, const QString& text, const QString& more, StandardButtons buttons,
            QWidget* parent)
      : QMessageBox(icon, ToQt(kApplicationName), text, buttons, parent) {
    // The text may hold a file name or a line of the user's, which must not be read as markup.
    setTextFormat(Qt::PlainText);
    if (!more.isEmpty()) setInformativeText(more);
    Wear(*this, Attire::Window);
    if (parent != nullptr) area_ = AreaOver(*parent).size();
    setFont(ScreenFont(TextPixels(area_.height())));
    // Half of the usual size: who wants larger texts has them where there is room.
    const int half = font().pixelSize() / 2;
    least_ = std::max(qRound(half / std::max(TextShare(), 1.0)), 1);
    setStyle(ScreenStyle());
    for (QWidget* widget : findChildren<QWidget*>()) widget->setStyle(ScreenStyle());
    setIcon(icon);  // drawn anew, at the size that the style has by now
    auto* sign = findChild<QLabel*>("qt_msgboxex_icon_label");
    if (sign != nullptr) sign->setAccessibleName(ToQt(NameOfSign(icon)));
  }

  const QAbstractButton* AddAnswer(const QString& caption) {
    QPushButton* button = addButton(caption, AcceptRole);
    button->setStyle(ScreenStyle());
    return button;
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
    const QRect screenPart = ScreenPartOver(*parentWidget());
    QPoint place = screenPart.center() - rect().center();
    if (width() > screenPart.width()) {
      const QRect desktop = screen()->availableGeometry();
      place.setX(std::max(std::min(place.x(), desktop.right() + 1 - width()), desktop.left()));
    }
    move(place);
  }

  /// Makes the letters lower until every word and all lines have room, but at most by half, for a
  /// name of any length.
  void Fit() {
    for (LayOut(); font().pixelSize() > least_ && !HasRoom(); LayOut()) {
      const int pixels = font().pixelSize();
      setFont(ScreenFont(std::max(pixels - std::max(pixels / kSteps, 1), least_)));
    }
  }

  void LayOut() {
    const int pixels = font().pixelSize();
    layout()->setContentsMargins(pixels, pixels, pixels, pixels);
    auto* buttons = findChild<QDialogButtonBox*>();
    if (buttons->sizeHint().width() > area_.width() - 2 * pixels) {
      buttons->setOrientation(Qt::Vertical);
    }
    const int most = area_.width() - kBesideText * pixels;
    SetLabelWidth(most);
    layout()->activate();
    // On the smallest screens the sign is larger than the letters ask for.
    const int beyond = layout()->totalSizeHint().width() - area_.width();
    if (beyond > 0) SetLabelWidth(most - beyond);
    layout()->activate();
    const int width = layout()->totalSizeHint().width();
    setFixedSize(width, layout()->totalHeightForWidth(width));
  }

  std::vector<QLabel*> Labels() const {
    std::vector<QLabel*> labels;
    for (const char* name : {"qt_msgbox_label", "qt_msgbox_informativelabel"}) {
      if (auto* label = findChild<QLabel*>(name)) labels.push_back(label);
    }
    return labels;
  }

  void SetLabelWidth(int most) {
    for (QLabel* label : Labels()) {
      const QRect lines = fontMetrics().boundingRect(QRect(), 0, label->text());
      if (!label->wordWrap()) label->setWordWrap(true);
      label->setFixedWidth(std::min(lines.width() + font().pixelSize() / 2, most));
    }
  }

  bool HasRoom() const {
    if (height() > area_.height()) return false;
    const std::vector<QLabel*> labels = Labels();
    return std::all_of(labels.begin(), labels.end(), [](const QLabel* label) {
      const QMargins margins = label->contentsMargins();
      const int room =
          label->maximumWidth() - margins.left() - margins.right() - std::max(label->indent(), 0);
      constexpr int kAnyHeight = 1 << 20;
      const QRect lines = label->fontMetrics().boundingRect(QRect(0, 0, room, kAnyHeight),
                                                            Qt::TextWordWrap, label->text());
      return lines.width() <= room;
    });
  }

  QSize area_{480, 640};
  int least_ = 1;  ///< height of letters in pixels
};

int Show(QWidget* parent, QMessageBox::Icon icon, std::u16string_view text,
         QMessageBox::StandardButtons buttons, std::u16string_view more = {}) {
  return ScaledBox(icon, ToQt(text), ToQt(more), buttons, parent).exec();
}

}  // namespace

void ShowStop(QWidget* parent, std::u16string_view text, std::u16string_view more) {
  Show(parent, QMessageBox::Critical, text, QMessageBox::Ok, more);
}

void ShowNotice(QWidget* parent, std::u16string_view text) {
  Show(parent, QMessageBox::Warning, text, QMessageBox::Ok);
}

bool AskYesNo(QWidget* parent, std::u16string_view question, std::u16string_view more) {
  return Show(parent, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No, more) ==
         QMessageBox::Yes;
}

Decision AskYesNoCancel(QWidget* parent, std::u16string_view question) {
  const int pressed = Show(parent, QMessageBox::Question, question,
                           QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  if (pressed == QMessageBox::Yes) return Decision::Yes;
  return pressed == QMessageBox::No ? Decision::No : Decision::Cancel;
}

bool AskNoOrYes(QWidget* parent, std::u16string_view question) {
  ScaledBox box(QMessageBox::Question, ToQt(question), {}, QMessageBox::Yes | QMessageBox::No,
                parent);
  box.setDefaultButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::size_t> AskWhich(QWidget* parent, std::u16string_view question,
                                    const std::vector<std::u16string>& answers) {
  ScaledBox box(QMessageBox::Question, ToQt(question), {}, QMessageBox::Cancel, parent);
  std::vector<const QAbstractButton*> buttons;
  buttons.reserve(answers.size());
  for (const std::u16string& answer : answers) {
    buttons.push_back(box.AddAnswer(ToQt(answer)));
  }
  box.exec();
  const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  if (chosen == buttons.end()) return std::nullopt;
  return static_cast<std::size_t>(chosen - buttons.begin());
}

void DressFileBox(QObject& widget) {
  auto* box = qobject_cast<QMessageBox*>(&widget);
  const auto* opener = box != nullptr ? qobject_cast<QFileDialog*>(box->parentWidget()) : nullptr;
  // The desktop's own dialog has no parts of ours.
  if (opener == nullptr || opener->layout() == nullptr) return;
  box->setFont(opener->font());
  box->setStyle(ScreenStyle());
  Wear(*box, Attire::Window);
  for (auto* part : box->findChildren<QWidget*>()) part->setStyle(ScreenStyle());
  box->setIcon(box->icon());  // drawn anew, at the size that the style has by now
}

void ShowAbout(QWidget* parent) {
  Show(parent, QMessageBox::Information, kAbout, QMessageBox::Ok);
}

}  // namespace kav
