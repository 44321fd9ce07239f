#include "screens/widgets/past_rows_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "line/past_lines_texts.h"
#include "screens/widgets/access_view.h"
#include "screens/widgets/look.h"
#include "screens/widgets/pop_up.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Of the height of a line of text: the room above and below the two lines of a row, and beside
/// them.
constexpr double kRoomAbove = 0.2;
constexpr double kRoomBeside = 0.4;
/// The letters of a base's tag, by those of the answer.
constexpr double kTagLetters = 0.7;

constexpr float kFaint = 0.12F;

/// Long texts are cut before they are measured: that takes time with each of their characters.
constexpr qsizetype kMostMeasured = 400;

QString Measured(const std::u16string& text) {
  return QString::fromStdU16String(text).left(kMostMeasured);
}

/// Whether the keyboard is in the view or in what stands around it.
bool HasKeyboard(const QWidget* view) {
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && view != nullptr && view->parentWidget()->isAncestorOf(focus);
}

int RowHeight(const QFontMetrics& metrics) {
  return qRound(metrics.height() * (2 + 2 * kRoomAbove));
}

class PastRowPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, RowHeight(option.fontMetrics)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const auto* rows = static_cast<const PastRows*>(index.model());
    const PastRow row = rows->Past().Row(static_cast<std::size_t>(index.row()));
    const QPalette& palette = option.palette;
    // Without the keyboard a row is marked faintly: it is not what the next key works on.
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isMarked = isSelected && HasKeyboard(option.widget);
    QColor mark = palette.color(QPalette::Highlight);
    if (!isMarked) mark.setAlphaF(kFaint);
    painter->save();
    if (isSelected) painter->fillRect(option.rect, mark);
    painter->setPen(palette.color(QPalette::Mid));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->setPen(palette.color(isMarked ? QPalette::HighlightedText : QPalette::Text));
    PaintTexts(*painter, option, row);
    painter->restore();
  }

 private:
  static void PaintTexts(QPainter& painter, const QStyleOptionViewItem& option,
                         const PastRow& row) {
    const QFontMetrics& metrics = option.fontMetrics;
    const int beside = qRound(metrics.height() * kRoomBeside);
    const int above = qRound(metrics.height() * kRoomAbove);
    const QRect line(option.rect.left() + beside, option.rect.top() + above,
                     option.rect.width() - 2 * beside, metrics.height());
    painter.setFont(option.font);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(Measured(row.line), Qt::ElideRight, line.width()));
    QRect answer = line.translated(0, metrics.height());
    if (!row.tag.empty()) {
      QFont small = option.font;
      small.setPixelSize(std::max(qRound(small.pixelSize() * kTagLetters), 1));
      const QString tag = ToQt(row.tag);
      painter.setFont(small);
      painter.drawText(answer, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, tag);
      answer.setRight(answer.right() - QFontMetrics(small).horizontalAdvance(tag) - beside);
    }
    QFont bold = option.font;
    bold.setBold(true);
    painter.setFont(bold);
    const QString text =
        QFontMetrics(bold).elidedText(Measured(row.answer), Qt::ElideMiddle, answer.width());
    painter.drawText(answer, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
  }
};

}  // namespace

void PastRows::Change(const std::function<void()>& change) {
  beginResetModel();
  change();
  endResetModel();
}

int PastRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(past_.Count());
}

QVariant PastRows::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= past_.Count()) return {};
  const std::u16string all = past_.Tip(row);
  if (role == Qt::ToolTipRole) return TipOf(all);
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  return QString::fromStdU16String(all).replace(u'\n', u' ');
}

PastRowsView::PastRowsView(PastRows& rows, Choose choose)
    : rows_(rows), choose_(std::move(choose)) {
  setStyle(ScreenStyle());
  verticalScrollBar()->setStyle(ScreenStyle());
  setAccessibleName(ToQt(kPastLinesName));
  setModel(&rows);
  setItemDelegate(new PastRowPainter(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  setFrameShape(NoFrame);
  LetKeyboardFollow(*this);
}

void PastRowsView::SetRow(int row) {
  const int last = rows_.rowCount({}) - 1;
  setCurrentIndex(rows_.index(std::min(row, last), 0));
}

void PastRowsView::SetTextHeight(int pixels) {
  setFont(ScreenFont(pixels));
  verticalScrollBar()->setSingleStep(RowHeight(fontMetrics()));
  setMinimumHeight(RowHeight(fontMetrics()));
}

void PastRowsView::mousePressEvent(QMouseEvent* event) {
  QListView::mousePressEvent(event);
  pressed_ = event->button() == Qt::LeftButton ? indexAt(event->pos()).row() : -1;
}

void PastRowsView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  const QModelIndex index = indexAt(event->pos());
  const int pressed = std::exchange(pressed_, -1);
  if (!index.isValid() || index.row() != pressed) return;
  const bool isAbove = event->pos().y() < visualRect(index).center().y();
  choose_(pressed, isAbove ? PastPart::Line : PastPart::Answer);
}

void PastRowsView::mouseDoubleClickEvent(QMouseEvent* event) {
  // Whoever taps twice means one row, which the first tap has chosen.
  event->accept();
}

void PastRowsView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  QPainter painter(viewport());
  if (rows_.rowCount({}) == 0) {
    painter.setPen(palette().color(QPalette::Text));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     ToQt(rows_.Past().WhyNone()));
  }
  if (!hasFocus()) return;
  const double line = std::max(2.0, fontMetrics().height() / 10.0);
  painter.setPen(QPen(palette().color(QPalette::Highlight), line));
  painter.drawRect(QRectF(viewport()->rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

}  // namespace kav
