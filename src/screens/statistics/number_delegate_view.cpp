#include "screens/statistics/number_delegate_view.h"

#include <QFontMetrics>
#include <QStyle>

#include "screens/widgets/look.h"

namespace kav {

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
  option->text = ElidedNumber(option->text, option->fontMetrics, option->rect.width() - 2 * margin);
}

}  // namespace kav
