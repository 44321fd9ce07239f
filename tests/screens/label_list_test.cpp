#include "screens/widgets/label_list.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "screens/screen_driver.h"

namespace kav::test::label_list_test {
namespace {

Texts LabelsOf(const LabelList& list) {
  Texts labels;
  for (int i = 0; i < list.count(); ++i) labels.push_back(list.item(i)->text().toStdU16String());
  return labels;
}

TEST(LabelListTest, ShowsWhatIsWrittenAndSaysNothing) {
  LabelList list(u"Names");
  EXPECT_EQ(list.accessibleName(), "Names");
  QSignalSpy spy(&list, &QListWidget::itemSelectionChanged);
  struct Row {
    Texts labels;
    std::optional<int> selected;
  };
  for (const Row& row : {Row{{u"a", u"b", u"c"}, 1}, Row{{u"d"}, 0}, Row{{u"d", u"e"}, 1},
                         Row{{u"d", u"e"}, std::nullopt}, Row{{}, std::nullopt}}) {
    list.Write(row.labels, row.selected);
    EXPECT_EQ(LabelsOf(list), row.labels);
    EXPECT_EQ(list.Selected(), row.selected);
  }
  EXPECT_EQ(spy.count(), 0);
}

TEST(LabelListTest, ItsUserIsHeard) {
  LabelList list(u"Names");
  list.Write({u"a", u"b"}, 0);
  Show(list);
  QSignalSpy spy(&list, &QListWidget::itemSelectionChanged);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.Selected(), 1);
  EXPECT_EQ(spy.count(), 1);
}

TEST(LabelListTest, LongLabelsStayInOneLineAndWithinTheList) {
  LabelList list(u"Names");
  list.Write({u"two\nlines", std::u16string(1 << 20, u'W')}, 0);
  Show(list, {200, 200});
  EXPECT_EQ(LabelsOf(list)[0], u"two lines");
  EXPECT_LT(LabelsOf(list)[1].size(), 1000U);
  EXPECT_TRUE(LabelsOf(list)[1].ends_with(u"…"));
  EXPECT_LE(list.visualItemRect(list.item(1)).width(), list.viewport()->width());
}

}  // namespace
}  // namespace kav::test::label_list_test
