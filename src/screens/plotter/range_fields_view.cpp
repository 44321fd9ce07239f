#include "screens/plotter/range_fields_view.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>
#include <vector>

#include "plotter/plotter_keypad.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/key_screen.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// The part of a field's height, and of a caption's width, that the text may take.
constexpr double kFieldTextHeight = 0.55;
constexpr double kTextWidth = 0.97;
/// The room that a field keeps beside its text, in pixels.
constexpr int kBesideText = 3;
/// What every field keeps free of its text at either side, in pixels.
constexpr int kTextMargin = 2;

/// A field that shows where a number begins and its exponent while nobody types in it.
class RangeEdit final : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 private:
  void paintEvent(QPaintEvent* event) override {
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &frame, this)
                           .adjusted(kTextMargin, 0, -kTextMargin, 0);
    if (hasFocus() || fontMetrics().horizontalAdvance(text()) <= room.width()) {
      return QLineEdit::paintEvent(event);
    }
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     HeadAndExponent(text(), fontMetrics(), room.width()));
  }
};

}  // namespace

QString HeadAndExponent(const QString& number, const QFontMetrics& letters, int width) {
  const qsizetype exponent = number.lastIndexOf('e', -1, Qt::CaseInsensitive);
  const QString end = exponent < 0 ? QString() : number.mid(exponent);
  const int room = width - letters.horizontalAdvance(end);
  return letters.elidedText(number.chopped(end.size()), Qt::ElideRight, room) + end;
}

RangeFieldsView::RangeFieldsView(QWidget* screen,
                                 const std::function<void(RangeField, std::u16string)>& onEdited) {
  for (const RangeField field : kRangeFields) {
    const QString caption = ToQt(CaptionOf(field));
    auto* edit = new RangeEdit(screen);
    edit->setStyle(ScreenStyle());
    edit->setAccessibleName(caption);
    edit->setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText);
    QObject::connect(edit, &QLineEdit::textChanged, edit, [onEdited, field](const QString& text) {
      onEdited(field, text.toStdU16String());
    });
    QObject::connect(edit, &QLineEdit::textChanged, edit, &QWidget::setToolTip);
    OpenDoor(*edit, DoorKind::Number);
    captions_[IndexOf(field)] = new QLabel(caption, screen);
    fields_[IndexOf(field)] = edit;
  }
}

void RangeFieldsView::Show(const RangeTexts& texts) {
  for (const RangeField field : kRangeFields) {
    const QString text = OneLine(texts[IndexOf(field)]);
    // Setting the same text again would move the caret while the user types.
    if (Of(field).text() == text) continue;
    // What is shown may be cut; only what the user changes is taken.
    const QSignalBlocker blocker(&Of(field));
    Of(field).setText(text);
    Of(field).home(false);
    Of(field).setToolTip(text);
  }
}

void RangeFieldsView::LayOut(const DialogUnits& units) {
  for (const RangeField field : kRangeFields) {
    captions_[IndexOf(field)]->setGeometry(units.Pixels(UnitsOf(PlaceOf(field).caption)));
    Of(field).setGeometry(units.Pixels(UnitsOf(PlaceOf(field).field)));
  }
}

int RangeFieldsView::FittingText(int most) const {
  std::vector<SpacedText> texts;
  for (const QLabel* caption : captions_) {
    texts.push_back({caption->text(), static_cast<int>(caption->width() * kTextWidth)});
  }
  const QLineEdit& field = *fields_.front();
  const int highest = std::min(most, qRound(field.height() * kFieldTextHeight));
  // A number with a sign and six digits is shown whole.
  QStyleOptionFrame frame;
  frame.initFrom(&field);
  frame.fontMetrics = QFontMetrics(ScreenFont(highest));
  const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &field);
  texts.push_back({"-123.456", room.width() - kBesideText});
  return FittingPixels(texts, highest, 1);
}

void RangeFieldsView::SetFont(const QFont& font) {
  for (QLabel* caption : captions_) caption->setFont(font);
  for (QLineEdit* field : fields_) field->setFont(font);
}

bool RangeFieldsView::Has(const QWidget* widget) const {
  return std::find(fields_.begin(), fields_.end(), widget) != fields_.end();
}

void RangeFieldsView::Enter(RangeField field) const {
  Of(field).setFocus();
  Of(field).selectAll();
}

}  // namespace kav
