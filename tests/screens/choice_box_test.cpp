// The lists that drop down: what room they ask for, and how they show what is too long for it.
#include "screens/widgets/choice_box.h"

#include <gtest/gtest.h>

#include <QStyle>
#include <QStyleOptionComboBox>

#include "screens/screen_driver.h"
#include "screens/widgets/look.h"

namespace kav::test::choice_box_test {
namespace {

/// The room for a text in a list `width` pixels wide.
int TextRoomOf(ChoiceBox& box, int width) {
  box.resize(width, box.sizeHint().height());
  QStyleOptionComboBox option;
  option.initFrom(&box);
  return box.style()
      ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
      .width();
}

int WidthOf(const ChoiceBox& box, const QString& text) {
  return box.fontMetrics().horizontalAdvance(text);
}

TEST(ChoiceBoxTest, AsksForTheRoomOfItsWidestEntry) {
  ChoiceBox box(u"Sizes");
  box.addItems({"1", "1000000", "10"});
  for (const int pixels : {9, 14, 60}) {
    box.setFont(ScreenFont(pixels));
    const int room = TextRoomOf(box, box.minimumSizeHint().width());
    EXPECT_GE(room, WidthOf(box, "1000000"));
    EXPECT_LE(room, WidthOf(box, "1000000") + 2);
    EXPECT_GE(box.minimumSizeHint().height(), box.fontMetrics().height());
  }
  EXPECT_EQ(box.accessibleName(), "Sizes");
}

TEST(ChoiceBoxTest, AsksForTheRoomThatItIsToKeepWhateverItsEntriesAre) {
  ChoiceBox box(u"Units");
  box.KeepRoomFor({u"Meters", u"m"});
  const int kept = box.minimumSizeHint().width();
  EXPECT_GE(TextRoomOf(box, kept), WidthOf(box, "Meters"));
  box.addItem(QString(5000, 'W'));
  EXPECT_EQ(box.minimumSizeHint().width(), kept);
}

TEST(ChoiceBoxTest, AnEntryThatIsTooLongIsSeenToBe) {
  ChoiceBox box(u"Names");
  const QString name(100, 'W');
  box.addItem(name);
  const int room = TextRoomOf(box, 200);
  const QImage cut = box.grab().toImage();
  box.setItemText(0, box.fontMetrics().elidedText(name, Qt::ElideRight, room - 1));
  EXPECT_TRUE(box.itemText(0).endsWith(QChar(u'…')));
  EXPECT_EQ(box.grab().toImage(), cut);
}

}  // namespace
}  // namespace kav::test::choice_box_test
