#include "screens/matrix/matrix_tabs_view.h"

#include <algorithm>

#include "matrix/matrix_texts.h"
#include "matrix/matrix_value.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// Of the height of the tabs.
constexpr double kTextHeight = 0.55;
/// Or this much, if the user wants large texts.
constexpr double kLargeTextHeight = 0.7;
/// What the text of a tab leaves free of it at least, in pixels.
constexpr int kMargins = 4;

}  // namespace

MatrixTabs::MatrixTabs(QWidget* parent) : QTabBar(parent) {
  setStyle(ScreenStyle());
  setAccessibleName(ToQt(kMatrixTabsName));
  setExpanding(true);
  setUsesScrollButtons(false);
  for (const auto name : kMatrixNames) addTab(ToQt(name));
}

void MatrixTabs::LayOut(const QRect& place) {
  setGeometry(place);
  FitTexts();
}

void MatrixTabs::resizeEvent(QResizeEvent* event) {
  FitTexts();
  QTabBar::resizeEvent(event);
}

void MatrixTabs::FitTexts() {
  const double wanted = std::min(kTextHeight * TextShare(), kLargeTextHeight);
  const int most = std::max(qRound(height() * wanted), 1);
  setFont(ScreenFont(most));
  int needed = count() * kMargins;
  for (int i = 0; i < count(); ++i) needed += TextWidth(i);
  if (needed > width()) setFont(ScreenFont(most * width() / needed));
}

QSize MatrixTabs::tabSizeHint(int index) const {
  int rest = width();
  for (int i = 0; i < count(); ++i) rest -= TextWidth(i);
  return {TextWidth(index) + std::max(rest, 0) / count(), height()};
}

int MatrixTabs::TextWidth(int index) const {
  return fontMetrics().horizontalAdvance(tabText(index));
}

}  // namespace kav
