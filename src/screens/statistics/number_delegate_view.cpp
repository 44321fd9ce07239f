#include "screens/statistics/number_delegate_view.h"

#include <QFontMetrics>
#include <QStyle>
#include <algorithm>

#include "screens/widgets/look.h"

namespace kav {
namespace {

/// The size of the smallest letters, as a part of the usual.
constexpr double kSmallest = 0.7;

}  // namespace

QString ElidedNumber(const QString& number, const QFontMetrics& letters, int room) {
  if (letters.horizontalAdvance(number) <= room) return number;
  const auto exponent = number.lastIndexOf('e');
  if (exponent > 0) {
    const QString end = number.mid(exponent);
    const QString start = letters.elidedText(number.left(exponent), Qt::ElideRight,
                                             room - letters.horizontalAdvance(end));
    // An ellipsis alone would tell less than the first digits do.
    if (start.size() > 1) return start + end;
  }
  return letters.elidedText(number, Qt::ElideRight, room);
}

void NumberDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const int margin =
      ScreenStyle()->pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
  const int room = option->rect.width() - 2 * margin - 1;
  const int width = option->fontMetrics.horizontalAdvance(option->text);
  if (width <= room) return;
  const int usual = option->font.pixelSize();
  const int least = static_cast<int>(usual * kSmallest);
  option->font.setPixelSize(std::max({usual * std::max(room, 0) / width, least, 1}));
  option->fontMetrics = QFontMetrics(option->font);
  option->text = ElidedNumber(option->text, option->fontMetrics, room);
  option->textElideMode = Qt::ElideNone;
}

}  // namespace kav
