// Texts that get smaller letters, or fewer digits, if they are too long.
#include "screens/widgets/fitting_text.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <string>

#include "screens/statistics/number_delegate_view.h"
#include "screens/widgets/fitting_number.h"
#include "screens/widgets/look.h"

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

TEST(FittingNumberTest, ANumberLosesDigitsButNotItsExponent) {
  const QLabel label;
  const QFontMetrics metrics = label.fontMetrics();
  const QString line = "Mem01 = -1.23456789012345678901234567890e-300";
  const int most = metrics.horizontalAdvance(line);
  EXPECT_EQ(FittingNumber(line, metrics, most), line);
  for (const int room : {most - 1, most * 2 / 3, most / 2}) {
    const QString fitted = FittingNumber(line, metrics, room);
    EXPECT_LE(metrics.horizontalAdvance(fitted), room);
    EXPECT_TRUE(fitted.startsWith("Mem01 = -1.2")) << fitted.toStdString();
    EXPECT_TRUE(fitted.endsWith(QString(QChar(0x2026)) + "e-300")) << fitted.toStdString();
  }
  // The end of what has no exponent gives way.
  const QString plain = "0.123456789012345678901234567890";
  const QString fitted = FittingNumber(plain, metrics, metrics.horizontalAdvance(plain) / 2);
  EXPECT_TRUE(fitted.startsWith("0.1234") && fitted.endsWith(QChar(0x2026)));
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

TEST(FittingTextTest, ANumberTooLongKeepsItsFirstDigitsAndItsExponent) {
  const QFontMetrics letters(ScreenFont(12));
  const auto shown = [&letters](const char* number, const char* room) {
    const QString text = ElidedNumber(number, letters, letters.horizontalAdvance(room));
    EXPECT_LE(letters.horizontalAdvance(text), letters.horizontalAdvance(room));
    return text.toStdString();
  };
  EXPECT_EQ(shown("-1.25e-300", "-1.25e-300"), "-1.25e-300");
  const std::string cut = shown("-1.2345678901234567e-300", "-1.23456e-300");
  EXPECT_TRUE(cut.starts_with("-1.2")) << cut;
  EXPECT_TRUE(cut.ends_with("\u2026e-300")) << cut;
  const std::string whole = shown("12345678901234567890", "1234567890");
  EXPECT_TRUE(whole.starts_with("12345") && whole.ends_with("\u2026")) << whole;
  EXPECT_TRUE(shown("1.5e-300", "e-30").ends_with("\u2026"));
}

}  // namespace
}  // namespace kav::test::fitting_text_test
