// The table of a data list as a screen reader finds it.
#include "screens/statistics/row_access_view.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QHeaderView>
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "screens/grid_access_driver.h"
#include "screens/screen_driver.h"
#include "screens/statistics/data_table_view.h"

namespace kav::test::row_access_test {
namespace {

constexpr std::array kColumns{DataColumn{u"X", 117}, DataColumn{u"Count", 45}};

class RowAccessTest : public testing::Test {
 protected:
  static constexpr int kMany = 1'000'000;

  RowAccessTest() { OfferRowTablesToScreenReaders(); }
  ~RowAccessTest() override {
    GridAccessTest::isListening = false;
    GridAccessTest::listenedTo = nullptr;
  }

  /// A list of the values 0, 1, 2 and so on, each as often as it says.
  void Open(int count) {
    for (int i = 0; i < count; ++i) {
      ASSERT_EQ(list_.Append({{std::to_string(i), {}}, i % 9 + 1}), std::nullopt);
    }
    table_ = std::make_unique<DataTableView>(nullptr, list_, kColumns);
    table_->SetHooks({.headingPressed = [this](std::size_t i) { calls_ += std::to_string(i); },
                      .edit = [this] { calls_ += 'e'; }});
    table_->SetTextHeight(12);
    test::Show(*table_, {240, 200});
  }
  void Listen() {
    GridAccessTest::isListening = true;
    GridAccessTest::listenedTo = table_.get();
    GridAccessTest::told.clear();
  }
  static bool WasTold(QAccessible::Event type, int child) {
    const auto& told = GridAccessTest::told;
    return std::find(told.begin(), told.end(), GridAccessTest::Event(type, child)) != told.end();
  }

  QAccessibleInterface& Access() { return *QAccessible::queryAccessibleInterface(table_.get()); }
  QAccessibleTableInterface& Cells() { return *Access().tableInterface(); }
  static void Do(QAccessibleInterface* what, const QString& action) {
    ASSERT_NE(what, nullptr);
    ASSERT_TRUE(what->actionInterface()->actionNames().contains(action));
    what->actionInterface()->doAction(action);
  }
  static std::string NameOf(QAccessibleInterface* what) {
    return what == nullptr ? "(null)" : what->text(QAccessible::Name).toStdString();
  }

  DataList list_{DataShape::OneVariable};
  std::unique_ptr<DataTableView> table_;
  std::string calls_;
};

TEST_F(RowAccessTest, HeadingsAndCellsAreItsChildren) {
  Open(2);
  EXPECT_EQ(NameOf(&Access()), "Data");
  EXPECT_EQ(Access().role(), QAccessible::Table);
  std::string names;
  for (int i = 0; i < Access().childCount(); ++i) {
    QAccessibleInterface* child = Access().child(i);
    EXPECT_EQ(Access().indexOfChild(child), i);
    EXPECT_EQ(child->role(), i < 2 ? QAccessible::ColumnHeader : QAccessible::Cell);
    EXPECT_EQ(child->parent(), &Access());
    EXPECT_EQ(Access().childAt(child->rect().center().x(), child->rect().center().y()), child);
    names += NameOf(child) + " ";
  }
  EXPECT_EQ(names, "X Count 0 1 1 2 ");
  EXPECT_EQ(Cells().columnDescription(1), "Count");
  EXPECT_EQ(Cells().rowDescription(1), "2");
  EXPECT_EQ(Cells().cellAt(1, 0)->tableCellInterface()->rowIndex(), 1);
  EXPECT_EQ(NameOf(Cells().cellAt(1, 1)->tableCellInterface()->columnHeaderCells().value(0)),
            "Count");
  EXPECT_EQ(Cells().cellAt(2, 0), nullptr);
  EXPECT_EQ(Cells().cellAt(-1, 0), nullptr);
  EXPECT_EQ(Access().child(6), nullptr);
}

TEST_F(RowAccessTest, TheArrowOfTheSortedColumnIsTold) {
  Open(3);
  const auto told = [this](int column) {
    return Access().child(column)->text(QAccessible::Description).toStdString();
  };
  EXPECT_EQ(told(1), "Sorts the rows (Ctrl+2)");
  table_->ShowSorted(DataSorting{1, DataList::Direction::Descending});
  EXPECT_EQ(told(1), "Sorted, the largest number first. Sorts the rows (Ctrl+2)");
  EXPECT_EQ(told(0), "Sorts the rows (Ctrl+1)");
  table_->ShowSorted(DataSorting{0, DataList::Direction::Ascending});
  EXPECT_EQ(told(0), "Sorted, the smallest number first. Sorts the rows (Ctrl+1)");
  EXPECT_EQ(NameOf(Access().child(0)), "X");
}

TEST_F(RowAccessTest, AMillionRowsAnswerAsSoonAsAFew) {
  Open(kMany);
  EXPECT_EQ(Cells().rowCount(), kMany);
  // Screen readers ask for all children that are counted.
  EXPECT_LE(Access().childCount(), 2'000);
  for (int i = 0; i < Access().childCount(); ++i) ASSERT_NE(Access().child(i), nullptr);
  QAccessibleInterface* last = Cells().cellAt(kMany - 1, 0);
  EXPECT_EQ(NameOf(last), "999999");
  EXPECT_EQ(Access().child(Access().indexOfChild(last)), last);
  EXPECT_TRUE(last->state().offscreen);
  EXPECT_TRUE(Cells().selectRow(500'000));
  EXPECT_EQ(table_->FirstSelected(), 500'000U);
  EXPECT_EQ(Cells().selectedRows(), QList<int>{500'000});
  EXPECT_EQ(NameOf(Cells().selectedCells().value(0)), "500000");
  EXPECT_TRUE(Cells().unselectRow(500'000));
  EXPECT_EQ(Cells().selectedRowCount(), 0);
  table_->selectAll();
  EXPECT_EQ(Cells().selectedRowCount(), kMany);
  EXPECT_LE(Cells().selectedCells().size(), 4'000);
  EXPECT_TRUE(Cells().isColumnSelected(1));
}

TEST_F(RowAccessTest, ManyCellsThatWereAskedForAreNotAllKept) {
  Open(50'000);
  const QAccessible::Id first = QAccessible::uniqueId(Cells().cellAt(0, 0));
  for (int row = 1; row < 50'000; ++row) ASSERT_NE(Cells().cellAt(row, 0), nullptr);
  EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr);
  EXPECT_EQ(NameOf(Cells().cellAt(0, 0)), "0");
}

TEST_F(RowAccessTest, WhatIsDoneToItIsWhatTheMouseDoes) {
  Open(9);
  Do(Cells().cellAt(4, 1), QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(table_->FirstSelected(), 4U);
  EXPECT_TRUE(table_->hasFocus());
  EXPECT_TRUE(Cells().cellAt(4, 0)->state().focused);
  EXPECT_TRUE(Cells().cellAt(4, 1)->state().selected);
  EXPECT_EQ(calls_, "");
  Do(Cells().cellAt(7, 0), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(table_->FirstSelected(), 7U);
  Do(Access().child(1), QAccessibleActionInterface::pressAction());
  EXPECT_EQ(calls_, "e1");
  table_->setEnabled(false);
  EXPECT_TRUE(Access().child(1)->actionInterface()->actionNames().isEmpty());
  EXPECT_FALSE(Cells().selectRow(0));
}

TEST_F(RowAccessTest, TheRowOfTheKeysIsTold) {
  Open(9);
  table_->setFocus();
  Listen();
  QTest::keyClick(table_.get(), Qt::Key_Down);
  const int row = table_->currentIndex().row();
  EXPECT_TRUE(WasTold(QAccessible::Focus, (row + 1) * 2));
  EXPECT_EQ(Access().focusChild(), Cells().cellAt(row, 0));
  GridAccessTest::told.clear();
  table_->selectAll();
  EXPECT_TRUE(WasTold(QAccessible::SelectionWithin, -1));
}

TEST_F(RowAccessTest, ACellThatIsGoneIsInvalid) {
  Open(3);
  QAccessibleInterface* cell = Cells().cellAt(2, 0);
  ASSERT_EQ(list_.Erase(2), std::nullopt);
  table_->Reload();
  EXPECT_FALSE(cell->isValid());
  EXPECT_EQ(NameOf(cell), "");
  EXPECT_TRUE(cell->state().invalid);
  EXPECT_EQ(Access().childCount(), 6);
}

}  // namespace
}  // namespace kav::test::row_access_test
