// A grid in a window of its own, worked as its user does.
#pragma once

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QWheelEvent>
#include <memory_resource>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/grid/grid_access_view.h"
#include "screens/grid/grid_ctrl.h"
#include "screens/grid/grid_edit_view.h"
#include "screens/screen_driver.h"

namespace kav::test {

inline std::string Written(GridCell cell) {
  return cell.IsNone() ? "none" : std::to_string(cell.row) + "," + std::to_string(cell.column);
}

/// What a grid leaves to the widget around it.
class GridParent final : public QWidget {
 public:
  std::vector<int> keys;
  int wheels = 0;

 private:
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    if (key < Qt::Key_Shift || key > Qt::Key_Alt) keys.push_back(key);
  }
  void wheelEvent(QWheelEvent*) override { ++wheels; }
};

/// A grid between two lines. It has one header row and one header column, 20 pixels wide; rows are
/// 18 pixels high, columns 60 wide. A header row and seven rows have room.
class GridScreen : public testing::Test {
 protected:
  using Log = std::vector<std::string>;

  static constexpr int kRowHeight = 18;
  static constexpr int kHeaderWidth = 20;
  static constexpr int kColumnWidth = 60;
  static constexpr int kVisibleRows = 7;

  explicit GridScreen(std::pmr::memory_resource* memory = std::pmr::get_default_resource())
      : grid_((OfferGridsToScreenReaders(), *new CGridCtrl(&window_, memory))) {
    before_.setGeometry(0, 0, 400, 20);
    grid_.setGeometry(10, 30, 320, kRowHeight * (1 + kVisibleRows));
    after_.setGeometry(0, 260, 400, 20);
    QWidget::setTabOrder(&before_, &grid_);
    QWidget::setTabOrder(&grid_, &after_);
    Show(window_, {400, 300});
    grid_.SetHooks({[this](int row, int column) {
                      Note("begin " + Written({row, column}));
                    },
                    [this](int row, int column, const QString& text) {
                      Note("end " + Written({row, column}) + " " + text.toStdString());
                    },
                    [this](int column, int width) {
                      Note("width " + std::to_string(column) + " " + std::to_string(width));
                    }});
  }

  /// Makes a grid of `rows` by `columns` empty cells with numbered headers, by the calls that the
  /// matrix screen makes.
  void Build(int rows, int columns) {
    grid_.ResetSelectedRange();
    ASSERT_TRUE(grid_.SetRowCount(rows + 1));
    ASSERT_TRUE(grid_.SetColumnCount(columns + 1));
    ASSERT_TRUE(grid_.SetFixedRowCount(1));
    ASSERT_TRUE(grid_.SetFixedColumnCount(1));
    for (int row = 1; row <= rows; ++row) Header({row, 0}, row);
    for (int column = 1; column <= columns; ++column) Header({0, column}, column);
    ASSERT_TRUE(grid_.SetColumnWidth(0, kHeaderWidth));
    // Scroll bars come and go a moment later.
    QCoreApplication::processEvents();
  }
  /// As Build, with the keys on the grid and the focus on a cell.
  void BuildAt(int rows, int columns, GridCell focus = {1, 1}) {
    Build(rows, columns);
    grid_.setFocus();
    grid_.SetFocusCell(focus);
    log_.clear();
  }

  void Put(GridCell cell, std::u16string_view text, GridFormat format = {}) {
    ASSERT_TRUE(
        grid_.SetItem({cell.row, cell.column, GridItem::kText | GridItem::kFormat, text, format}));
  }
  std::u16string Text(GridCell cell) {
    return std::u16string(grid_.GetItemText(cell.row, cell.column));
  }

  // What is selected: "1,1" for one cell, "1,1-2,3" for more.
  std::string Focus() { return Written(grid_.Focus()); }
  std::string Selection() {
    const GridRange range = grid_.Selection();
    if (range.IsNone() || range.IsOneCell()) return Written({range.top, range.left});
    return Written({range.top, range.left}) + "-" + Written({range.bottom, range.right});
  }

  // Keys go to what has the focus.
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  /// The first character may open a box that takes the others.
  static void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClicks(QApplication::focusWidget(), QString(c));
  }

  // The mouse, in pixels of the grid. Its events go to the part of the grid that is there.
  QPoint Middle(GridCell cell) { return grid_.CellArea(cell).center(); }
  void Press(QPoint place, Qt::KeyboardModifiers modifiers = {}) {
    Mouse(QEvent::MouseButtonPress, place, modifiers);
  }
  void Move(QPoint place) { Mouse(QEvent::MouseMove, place, {}); }
  void Release(QPoint place) { Mouse(QEvent::MouseButtonRelease, place, {}); }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    Move(to);
    Release(to);
  }
  /// As the toolkit finds the widget under the mouse.
  QWidget& PartAt(QPoint place) {
    QWidget* part = grid_.childAt(place);
    return part != nullptr ? *part : grid_;
  }
  QPoint InPart(QPoint place) { return PartAt(place).mapFrom(&grid_, place); }
  void ClickAt(QPoint place, Qt::KeyboardModifiers modifiers = {}) {
    // The toolkit's test takes (0, 0) of a part for its middle.
    const bool isCorner = InPart(place).isNull();
    QTest::mouseClick(isCorner ? &grid_ : &PartAt(place), Qt::LeftButton, modifiers,
                      isCorner ? place : InPart(place));
  }
  void ClickCell(GridCell cell, Qt::KeyboardModifiers modifiers = {}) {
    ClickAt(Middle(cell), modifiers);
  }
  void DoubleClickAt(QPoint place) {
    ClickAt(place);
    QTest::mouseDClick(&PartAt(place), Qt::LeftButton, {}, InPart(place));
  }
  /// Turns the wheel: 120 are a step, upwards and to the left is positive.
  void Wheel(QPoint angles) {
    const QPointF place = grid_.viewport()->rect().center();
    QWheelEvent event(place, grid_.viewport()->mapToGlobal(place), {}, angles, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    // Only what comes from outside goes on to the parent.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(grid_.viewport(), &event);
  }
  void Wheel(int angle) { Wheel(QPoint(0, angle)); }

  /// All but the scroll bars.
  QRect Whole() { return {QPoint(0, 0), grid_.viewport()->geometry().bottomRight()}; }
  /// The part of it that the headers leave to the cells.
  QRect Room() {
    const QRect corner = grid_.CellArea({0, 0});
    return Whole().adjusted(corner.width(), corner.height(), 0, 0);
  }
  /// The cell at the upper left of that part.
  GridCell FirstShown() { return grid_.CellAt(Room().topLeft()); }

  GridEdit& Box() { return *grid_.findChild<GridEdit*>(); }
  QRect BoxArea() { return {Box().mapTo(&grid_, QPoint(0, 0)), Box().size()}; }

  /// What the hooks told since the last call.
  Log Told() { return std::exchange(log_, {}); }
  virtual void Note(const std::string& line) { log_.push_back(line); }

  Log log_;  // outlives the grid, whose open box is ended when the window goes
  GridParent window_;
  QLineEdit before_{&window_};
  CGridCtrl& grid_;
  QLineEdit after_{&window_};

 private:
  void Header(GridCell cell, int number) {
    Put(cell, QString::number(number).toStdU16String(), {GridAlignment::Centre, false});
  }
  void Mouse(QEvent::Type type, QPoint place, Qt::KeyboardModifiers modifiers) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    if (type == QEvent::MouseButtonPress) pressed_ = &PartAt(place);
    QWidget& part = type == QEvent::MouseMove && pressed_ == nullptr ? PartAt(place) : *pressed_;
    if (type == QEvent::MouseButtonRelease) pressed_ = nullptr;
    QMouseEvent event(type, part.mapFrom(&grid_, place), grid_.mapToGlobal(place), button, held,
                      modifiers);
    QApplication::sendEvent(&part, &event);
  }

  QWidget* pressed_ = nullptr;  // gets all of the mouse until the button is released
};

}  // namespace kav::test
