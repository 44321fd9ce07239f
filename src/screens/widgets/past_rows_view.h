// The past lines as a list of rows that are painted, not made of widgets.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <functional>

#include "line/past_lines_model.h"

namespace kav {

/// What the model has found, for views and screen readers.
class PastRows final : public QAbstractListModel {
 public:
  /// `past` must outlive it.
  PastRows(const PastLinesModel& past, QObject* parent) : QAbstractListModel(parent), past_(past) {}

  /// Calls `change`, after which any row may be another one.
  void Change(const std::function<void()>& change);

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  const PastLinesModel& Past() const { return past_; }

 private:
  const PastLinesModel& past_;
};

/// The part of a row that was chosen.
enum class PastPart { Line, Answer };

/// Each row has the line above and its answer, on the right, below it. A tap on either chooses it.
class PastRowsView final : public QListView {
 public:
  using Choose = std::function<void(int row, PastPart part)>;

  PastRowsView(PastRows& rows, Choose choose);

  /// The row of the keys, -1 for none.
  int Row() const { return currentIndex().row(); }
  void SetRow(int row);
  /// Rows for letters of `pixels`. One of them has room at least.
  void SetTextHeight(int pixels);

 private:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  PastRows& rows_;
  Choose choose_;
  int pressed_ = -1;  ///< the row that the mouse went down on
};

}  // namespace kav
