// Texts that get smaller letters if they are too long.
#include "screens/widgets/fitting_text.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>

namespace kav::test::fitting_text_test {
namespace {

int WidthOf(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().horizontalAdvance(text);
}

TEST(FittingTextTest, AShortTextHasTheLargestLetters) {
  FittingText<QLabel> label(0);
  label.resize(200, 40);
  label.Fit(20);
  label.Write("12");
  EXPECT_EQ(label.font().pixelSize(), 20);
  EXPECT_EQ(label.text(), "12");
}

TEST(FittingTextTest, TheLongestLineDecides) {
  FittingText<QLabel> label(0);
  label.resize(200, 60);
  label.Fit(20);
  const QString longest = "1234567.891000000061467890123";
  label.Write("1\n" + longest);
  EXPECT_LT(label.font().pixelSize(), 20);
  EXPECT_LE(WidthOf(label, longest), 200);
  label.Write("1\n2");
  EXPECT_EQ(label.font().pixelSize(), 20);
}

TEST(FittingTextTest, LeavesFreeWhatItIsToldBesideTheText) {
  FittingText<QLineEdit> line(1);
  line.resize(200, 40);
  line.Fit(20);
  line.Write("Out of range(overflow or underflow)");
  EXPECT_LE(WidthOf(line, line.text()), 180);
}

TEST(FittingTextTest, ItsHeightIsThatOfTheLargestLettersWhateverItShows) {
  FittingText<QLineEdit> line(1);
  line.resize(200, 40);
  line.Fit(20);
  line.Write("1");
  const QSize before = line.sizeHint();
  line.Write(QString(100, '1'));
  EXPECT_LT(line.font().pixelSize(), 20);
  EXPECT_EQ(line.sizeHint(), before);
  EXPECT_EQ(line.minimumSizeHint(), before);
  EXPECT_GE(before.height(), QFontMetrics(ScreenFont(20)).height());
}

TEST(FittingTextTest, AWiderPlaceGivesTheLettersTheirSizeBack) {
  FittingText<QLabel> label(0);
  label.resize(50, 40);
  label.show();
  label.Fit(20);
  label.Write("1234567890");
  const int small = label.font().pixelSize();
  label.resize(400, 40);
  EXPECT_LT(small, 20);
  EXPECT_EQ(label.font().pixelSize(), 20);
}

}  // namespace
}  // namespace kav::test::fitting_text_test
