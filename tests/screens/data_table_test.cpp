// The table of a data list: what it shows, and that it is as fast with a long list.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QScrollBar>
#include <array>
#include <string>

#include "screens/screen_driver.h"
#include "screens/statistics/data_table_view.h"
#include "screens/statistics/number_delegate_view.h"
#include "support/effort.h"

namespace kav::test::data_table_test {
namespace {

constexpr std::array kColumns{DataColumn{u"X", 117}, DataColumn{u"Count", 45}};

/// Counts what a view asks of the model below.
class CountingModel final : public QIdentityProxyModel {
 public:
  QVariant data(const QModelIndex& index, int role) const override {
    ++asked;
    return QIdentityProxyModel::data(index, role);
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    ++asked;
    return QIdentityProxyModel::flags(index);
  }

  mutable int asked = 0;
};

class DataTableTest : public testing::Test {
 protected:
  const int kMany = Tries(1'000'000);

  void Append(const std::string& value, std::optional<std::int32_t> count = 1) {
    ASSERT_EQ(list_.Append({{value, {}}, count}), std::nullopt);
  }
  /// Rows with the values 0, 1, 2 and so on.
  void AppendMany(int count) {
    for (int i = 0; i < count; ++i) Append(std::to_string(i));
  }
  /// Shows the list in a window of its own.
  DataTableView& Open(QSize size = {240, 200}) {
    table_ = std::make_unique<DataTableView>(nullptr, list_, kColumns);
    table_->SetTextHeight(12);
    Show(*table_, size);
    return *table_;
  }
  DataTableView& OpenCounting() {
    DataTableView& table = Open();
    counting_.setSourceModel(table.model());
    table.setModel(&counting_);
    Settle();
    return table;
  }
  /// How often the model was asked since the last call, including by painting.
  int Asked() {
    Settle();
    return std::exchange(counting_.asked, 0);
  }
  static void Settle() { QCoreApplication::processEvents(); }
  static std::string At(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString().toStdString();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(table_.get(), key, modifiers);
  }

  DataList list_{DataShape::OneVariable};
  CountingModel counting_;
  std::unique_ptr<DataTableView> table_;
};

/// Enough for some paintings of 20 rows, each with a dozen roles a cell.
constexpr int kFewQuestions = 5'000;

TEST_F(DataTableTest, ShowsTheTextsOfTheRows) {
  Append("1.5e+3", 2);
  Append("-7", std::nullopt);
  const DataTableView& table = Open();
  ASSERT_EQ(table.model()->rowCount(), 2);
  ASSERT_EQ(table.model()->columnCount(), 2);
  EXPECT_EQ(At(table, 0, 0), "1.5e+3");
  EXPECT_EQ(At(table, 0, 1), "2");
  EXPECT_EQ(At(table, 1, 0), "-7");
  EXPECT_EQ(At(table, 1, 1), "") << "a row without a count";
}

TEST_F(DataTableTest, BytesAreShownAsLatin1) {
  Append("\xB5m\xFC");
  EXPECT_EQ(Open().model()->index(0, 0).data().toString(), ToQt(u"\u00B5m\u00FC"));
}

TEST_F(DataTableTest, TheFirstCharactersOfALongTextAreShown) {
  Append(std::string(DataList::kLongestValue, '7'));
  const QString shown = Open().model()->index(0, 0).data().toString();
  EXPECT_GT(shown.size(), 100);
  EXPECT_LT(shown.size(), 1000);
  EXPECT_EQ(table_->textElideMode(), Qt::ElideRight);
}

TEST_F(DataTableTest, ColumnsShareTheWidthAtEverySize) {
  Append("1");
  DataTableView& table = Open();
  for (const int width : {100, 240, 481, 1080}) {
    table.resize(width, 200);
    Settle();
    const int whole = table.viewport()->width();
    EXPECT_EQ(table.columnWidth(0) + table.columnWidth(1), whole);
    EXPECT_NEAR(table.columnWidth(0), whole * 117.0 / (117 + 45), 1);
  }
}

TEST_F(DataTableTest, AColumnIsDraggedWiderAndTheNextGivesWay) {
  Append("1");
  DataTableView& table = Open();
  const int whole = table.viewport()->width();
  const auto drag = [&table](int from, int to) {
    QWidget& headings = *table.horizontalHeader()->viewport();
    QTest::mousePress(&headings, Qt::LeftButton, {}, {from, 5});
    QTest::mouseMove(&headings, {(from + to) / 2, 5});
    QTest::mouseMove(&headings, {to, 5});
    QTest::mouseRelease(&headings, Qt::LeftButton, {}, {to, 5});
  };
  const int edge = table.columnWidth(0);
  drag(edge, edge - 60);
  EXPECT_EQ(table.columnWidth(0), edge - 60);
  EXPECT_EQ(table.columnWidth(1), whole - edge + 60);
  table.resize(480, 200);
  Settle();
  EXPECT_NEAR(table.columnWidth(0), table.viewport()->width() * (edge - 60.0) / whole, 1);
  EXPECT_EQ(table.columnWidth(0) + table.columnWidth(1), table.viewport()->width());
  drag(table.columnWidth(0), 2'000);
  EXPECT_GE(table.columnWidth(1), 12) << "each column stays in view";
}

TEST_F(DataTableTest, TheSortedColumnHasTheArrow) {
  AppendMany(3);
  DataTableView& table = Open();
  const QHeaderView& headings = *table.horizontalHeader();
  EXPECT_EQ(headings.sortIndicatorSection(), -1);
  table.ShowSorted(DataSorting{1, DataList::Direction::Ascending});
  EXPECT_EQ(headings.sortIndicatorSection(), 1);
  EXPECT_EQ(headings.sortIndicatorOrder(), Qt::AscendingOrder);
  const QImage upwards = table.grab().toImage();
  table.ShowSorted(DataSorting{1, DataList::Direction::Descending});
  EXPECT_NE(table.grab().toImage(), upwards);
  table.ShowSorted(std::nullopt);
  EXPECT_EQ(headings.sortIndicatorSection(), -1);
}

TEST_F(DataTableTest, TheFrameOfTheKeysIsAroundTheRow) {
  AppendMany(3);
  DataTableView& table = Open();
  table.setFocus();
  table.selectionModel()->setCurrentIndex(table.model()->index(1, 0),
                                          QItemSelectionModel::NoUpdate);
  Settle();
  const QImage with = table.viewport()->grab().toImage();
  table.clearFocus();
  Settle();
  const QImage without = table.viewport()->grab().toImage();
  const int top = table.visualRect(table.model()->index(1, 0)).top();
  int different = 0;
  for (int x = 0; x < with.width(); ++x) {
    for (int y = top; y < top + table.RowHeight(); ++y) {
      if (with.pixel(x, y) == without.pixel(x, y)) continue;
      ++different;
      break;
    }
  }
  EXPECT_GE(different, with.width() - 8);
}

TEST_F(DataTableTest, NumbersStandOnTheRight) {
  Append("1.5", 2);
  const DataTableView& table = Open();
  for (int column = 0; column < 2; ++column) {
    const QVariant place = table.model()->index(0, column).data(Qt::TextAlignmentRole);
    EXPECT_TRUE(place.value<Qt::Alignment>().testFlag(Qt::AlignRight));
  }
}

/// Tells how it would draw a cell.
class OpenDelegate final : public NumberDelegate {
 public:
  using NumberDelegate::initStyleOption;
};

TEST_F(DataTableTest, TheLargestCountHasRoomInSmallerLetters) {
  Append("1", 10'000);
  DataTableView& table = Open({150, 200});
  const OpenDelegate numbers;
  QStyleOptionViewItem cell;
  cell.initFrom(&table);
  cell.rect = table.visualRect(table.model()->index(0, 1));
  numbers.initStyleOption(&cell, table.model()->index(0, 1));
  EXPECT_EQ(cell.text, "10000");
  EXPECT_LT(cell.font.pixelSize(), 12);
}

TEST_F(DataTableTest, RowsGrowWithTheText) {
  AppendMany(10);
  DataTableView& table = Open();
  for (const int pixels : {8, 12, 40}) {
    table.SetTextHeight(pixels);
    EXPECT_GE(table.RowHeight(), table.fontMetrics().height());
    const QAbstractItemModel& rows = *table.model();
    const int first = table.visualRect(rows.index(0, 0)).top();
    EXPECT_EQ(table.visualRect(rows.index(9, 0)).top() - first, 9 * table.RowHeight());
  }
}

TEST_F(DataTableTest, MoreRowsThanPixelsCanCountAreNotHigherThanThat) {
  AppendMany(100);
  DataTableView& table = Open();
  table.SetTextHeight(30'000'000);
  EXPECT_LE(std::int64_t{table.RowHeight()} * 100, std::numeric_limits<int>::max());
  EXPECT_GT(table.visualRect(table.model()->index(99, 0)).bottom(), 0);
}

TEST_F(DataTableTest, SelectedRowsCountFromTheTop) {
  AppendMany(10);
  DataTableView& table = Open();
  EXPECT_EQ(table.FirstSelected(), std::nullopt);
  for (const int row : {7, 3, 4}) {
    table.selectionModel()->select(table.model()->index(row, 1),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  EXPECT_EQ(table.FirstSelected(), 3U);
  EXPECT_EQ(table.SelectedRows(), (std::vector<std::size_t>{3, 4, 7}));
  table.selectAll();
  EXPECT_EQ(table.FirstSelected(), 0U);
  EXPECT_EQ(table.SelectedRows().size(), 10U);
}

TEST_F(DataTableTest, OnlyTheUserSelectsAloud) {
  AppendMany(10);
  DataTableView& table = Open();
  int calls = 0;
  table.SetHooks({.selectionChanged = [&] { ++calls; }});
  table.Select(4);
  EXPECT_EQ(table.FirstSelected(), 4U);
  table.Select(std::nullopt);
  EXPECT_EQ(table.FirstSelected(), std::nullopt);
  table.Select(10);
  EXPECT_EQ(table.FirstSelected(), std::nullopt) << "there is no such row";
  EXPECT_EQ(calls, 0);
  Key(Qt::Key_Home);
  EXPECT_EQ(table.FirstSelected(), 0U);
  EXPECT_EQ(calls, 1);
}

TEST_F(DataTableTest, KeysCallTheHooks) {
  AppendMany(3);
  std::string calls;
  Open().SetHooks({.headingPressed = [&](std::size_t column) { calls += std::to_string(column); },
                   .edit = [&] { calls += 'e'; },
                   .remove = [&] { calls += 'r'; },
                   .copy = [&] { calls += 'c'; },
                   .paste = [&] { calls += 'p'; }});
  Key(Qt::Key_Return);
  Key(Qt::Key_Enter);
  Key(Qt::Key_Delete);
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(calls, "eercp1");
}

TEST_F(DataTableTest, WithoutHooksKeysDoNothing) {
  AppendMany(3);
  Open();
  for (const auto key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_5}) Key(key);
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(table_->model()->rowCount(), 3);
}

TEST_F(DataTableTest, ItsPlaceStaysWhenRowsGoAndLeadsToTheTopWhenRowsCome) {
  AppendMany(100);
  DataTableView& table = Open();
  table.verticalScrollBar()->setValue(50);
  ASSERT_EQ(list_.Erase(60), std::nullopt);
  table.Reload();
  Settle();
  EXPECT_EQ(table.verticalScrollBar()->value(), 50);
  ASSERT_EQ(list_.InsertTop(DataRow{{"new", {}}, 1}), std::nullopt);
  table.Reload();
  Settle();
  EXPECT_EQ(table.verticalScrollBar()->value(), 0);
  EXPECT_EQ(At(table, 0, 0), "new");
}

TEST_F(DataTableTest, TheArrowsGoOnFromWhereARowWasDeleted) {
  AppendMany(10);
  DataTableView& table = Open();
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  ASSERT_EQ(list_.Erase(2), std::nullopt);
  table.Reload();
  EXPECT_EQ(table.FirstSelected(), std::nullopt);
  Key(Qt::Key_Down);
  EXPECT_EQ(table.FirstSelected(), 3U);
}

TEST_F(DataTableTest, AListThatIsAheadOfTheTableDoesNoHarm) {
  AppendMany(10);
  DataTableView& table = Open();
  list_ = DataList(list_.Shape());
  EXPECT_EQ(At(table, 9, 0), "");
  table.viewport()->repaint();
  table.Reload();
  EXPECT_EQ(table.model()->rowCount(), 0);
}

TEST_F(DataTableTest, AMillionRowsAreShownByLookingAtAFew) {
  DataTableView& table = OpenCounting();
  Asked();
  AppendMany(kMany);
  EXPECT_EQ(Asked(), 0);
  table.Reload();
  EXPECT_EQ(table.model()->rowCount(), kMany);
  EXPECT_LT(Asked(), kFewQuestions);
  table.scrollToBottom();
  EXPECT_LT(Asked(), kFewQuestions);
  EXPECT_EQ(At(table, kMany - 1, 0), std::to_string(kMany - 1));
  Key(Qt::Key_End);
  EXPECT_EQ(table.FirstSelected(), kMany - 1U);
  Key(Qt::Key_Home);
  Key(Qt::Key_PageDown);
  EXPECT_LT(Asked(), kFewQuestions);
}

TEST_F(DataTableTest, WhatIsTypedIntoAMillionRowsIsNotSearchedFor) {
  AppendMany(kMany);
  DataTableView& table = OpenCounting();
  Asked();
  Key(Qt::Key_9);
  static_cast<QAbstractItemView&>(table).keyboardSearch("999999");
  EXPECT_LT(Asked(), kFewQuestions);
}

TEST_F(DataTableTest, SelectingAMillionRowsLooksAtAFew) {
  AppendMany(kMany);
  DataTableView& table = OpenCounting();
  Asked();
  table.selectAll();
  EXPECT_EQ(table.FirstSelected(), 0U);
  EXPECT_LT(Asked(), kFewQuestions);
  EXPECT_EQ(table.SelectedRows().size(), static_cast<std::size_t>(kMany));
}

TEST_F(DataTableTest, AnotherTextHeightOfAMillionRowsTellsNobodyOfEachRow) {
  AppendMany(kMany);
  DataTableView& table = Open();
  int told = 0;
  QObject::connect(table.verticalHeader(), &QHeaderView::sectionResized, [&] { ++told; });
  table.SetTextHeight(30);
  EXPECT_EQ(told, 0);
  EXPECT_EQ(table.verticalHeader()->count(), 0) << "each would take memory";
  EXPECT_GE(table.RowHeight(), table.fontMetrics().height());
  table.scrollToBottom();
  EXPECT_TRUE(
      table.viewport()->rect().intersects(table.visualRect(table.model()->index(kMany - 1, 0))));
}

TEST_F(DataTableTest, SortingAMillionRowsByAClickLooksAtAFew) {
  AppendMany(kMany);
  DataTableView& table = OpenCounting();
  table.SetHooks({.headingPressed = [this](std::size_t column) {
    list_.Sort(column, DataList::Direction::Descending);
  }});
  Asked();
  const QHeaderView& headings = *table.horizontalHeader();
  QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, {10, headings.height() / 2});
  table.viewport()->update();
  EXPECT_LT(Asked(), kFewQuestions);
  EXPECT_EQ(At(table, 0, 0), std::to_string(kMany - 1));
  EXPECT_EQ(At(table, kMany - 1, 0), "0");
}

}  // namespace
}  // namespace kav::test::data_table_test
