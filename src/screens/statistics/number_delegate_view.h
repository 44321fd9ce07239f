// Draws the numbers of a table.
#pragma once

#include <QStyledItemDelegate>

namespace kav {

/// `number` as far as it fits into `room` pixels: what is left out is seen to be, and an exponent
/// stays, because without it the rest would tell another number.
QString ElidedNumber(const QString& number, const QFontMetrics& letters, int room);

/// Numbers that are too long for their cells get smaller letters, and are cut if that is not
/// enough.
class NumberDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace kav
