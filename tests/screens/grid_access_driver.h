// A grid that a screen reader listens to.
#pragma once

#include <QAccessible>
#include <string>
#include <utility>
#include <vector>

#include "screens/grid_driver.h"

namespace kav::test {

/// A grid of three rows and two columns with the texts "11" to "32", and somebody who listens.
class GridAccessTest : public GridScreen {
 public:
  using Event = std::pair<QAccessible::Event, int>;  // and the child that it is about

  static inline bool isListening = false;
  static inline const QObject* listenedTo = nullptr;
  static inline std::vector<Event> told;

 protected:
  GridAccessTest() {
    grid_.setAccessibleName("Cells");
    Build(3, 2);
    for (int row = 1; row <= 3; ++row) {
      for (int column = 1; column <= 2; ++column) {
        Put({row, column}, QString::number(10 * row + column).toStdU16String());
      }
    }
    isListening = true;
    listenedTo = &grid_;
    told.clear();
  }
  ~GridAccessTest() override {
    isListening = false;
    listenedTo = nullptr;
  }

  QAccessibleInterface& Access() { return *QAccessible::queryAccessibleInterface(&grid_); }
  QAccessibleTableInterface& Table() { return *Access().tableInterface(); }
  QAccessibleInterface& Cell(int row, int column) { return *Table().cellAt(row, column); }
  /// As the grid counts them, headers included.
  QAccessibleInterface& Child(GridCell cell) { return *Access().child(Index(cell)); }
  int Index(GridCell cell) { return cell.row * grid_.Model().ColumnCount() + cell.column; }

  static std::string NameOf(QAccessibleInterface* cell) {
    return cell == nullptr ? "(null)" : cell->text(QAccessible::Name).toStdString();
  }
  static std::string Names(const QList<QAccessibleInterface*>& cells) {
    std::string names;
    for (QAccessibleInterface* cell : cells) names += NameOf(cell) + " ";
    return names;
  }
  static std::vector<Event> Heard() { return std::exchange(told, {}); }
};

}  // namespace kav::test
