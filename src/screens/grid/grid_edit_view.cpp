#include "screens/grid/grid_edit_view.h"

#include <QPainter>
#include <algorithm>

#include "common/number_text.h"
#include "screens/widgets/look.h"

namespace kav {

GridEdit::GridEdit(QWidget* parent) : QLineEdit(parent) {
  setStyle(ScreenStyle());
  setFrame(false);
  setMaxLength(kLongestText);
  hide();
}

QString GridEdit::TypedText() const {
  return QString::fromStdU16String(OnOneLine(text().toStdU16String()));
}

void GridEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  const int line = 2 * std::max(1, height() / 26);
  painter.setPen(QPen(palette().color(QPalette::Highlight), line, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(rect().adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace kav
