// A table of rows that are all of one height.
#pragma once

#include <QStyleOptionViewItem>
#include <QTableView>

namespace kav {

/// The place of a cell among the children that screen readers find. Row -1 is that of the headings.
constexpr int PlaceInTable(int row, int column, int columns) {
  return (row + 1) * columns + column;
}

/// The toolkit's table keeps a size for each row: here a row takes neither memory nor time. Rows
/// are selected as a whole; the row of the keys has a frame.
class RowTable : public QTableView {
 public:
  explicit RowTable(QWidget* parent);

  /// `pixels` of each row with the line below it; lower if pixels could not count all rows.
  void SetRowHeight(int pixels);
  int RowHeight() const;
  int RowTotal() const { return model() == nullptr ? 0 : model()->rowCount(); }
  int ColumnTotal() const { return model() == nullptr ? 0 : model()->columnCount(); }

  /// As the mouse does it: a click on a row, a double click on it, a click on a heading.
  void PickRow(int row);
  virtual void OpenRow(int) {}
  virtual void PressHeading(int) {}

  void setModel(QAbstractItemModel* model) override;
  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  QModelIndex indexAt(const QPoint& place) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;
  void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
  void currentChanged(const QModelIndex& now, const QModelIndex& before) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex&) const override { return false; }
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;

 private:
  /// How many rows have room, at least 1.
  int RowsInView() const;
  int TopRow() const;
  QRect AreaOf(int row) const;
  void PaintCell(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index);
  void PaintLines(QPainter& painter, const QStyleOptionViewItem& option, int rows) const;
  void PaintFocus(QPainter& painter) const;
  void TellOfCurrent();

  int height_ = 1;
};

}  // namespace kav
