// The colours that windows wear: which, when, and that all of them can be read.
#include "screens/widgets/colour_scheme.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QToolTip>
#include <set>
#include <string>
#include <vector>

#include "screens/every_window.h"
#include "screens/widgets/app_events.h"

namespace kav::test::colour_scheme_test {
namespace {

QPalette Desktop(QRgb window, QRgb text) {
  QPalette palette;
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
    palette.setColor(role, QColor(window));
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, QColor(text));
  }
  return palette;
}

constexpr QRgb kWhite = 0xFFFFFF;
constexpr QRgb kBlack = 0x000000;

/// Leaves the program as all other tests find it.
class ColourSchemeTest : public EveryWindow {
 protected:
  ~ColourSchemeTest() override {
    QApplication::setPalette(QPalette());
    UseColours(ColourChoice::Light);
  }
};

TEST_F(ColourSchemeTest, TheDesktopsTextsTellWhetherItIsDark) {
  struct Row {
    const char* name;
    QRgb window;
    QRgb text;
    const char* icons;
    ColourScheme scheme;
  };
  for (const Row& row : std::vector<Row>{
           {"grey windows", 0xEFEFEF, kBlack, "", ColourScheme::Light},
           {"dark windows", 0x2A2E32, 0xFCFCFC, "breeze-dark", ColourScheme::Dark},
           {"nearly black windows", 0x101010, 0xF0F0F0, "", ColourScheme::Dark},
           {"black on white", kWhite, kBlack, "", ColourScheme::BlackOnWhite},
           {"white on black", kBlack, kWhite, "", ColourScheme::WhiteOnBlack},
           {"icons alone", 0xEFEFEF, kBlack, "HighContrast", ColourScheme::BlackOnWhite},
           {"inverse icons", 0x303030, kWhite, "HighContrastInverse", ColourScheme::WhiteOnBlack},
       }) {
    const QPalette desktop = Desktop(row.window, row.text);
    EXPECT_EQ(SchemeFor(ColourChoice::System, desktop, row.icons), row.scheme) << row.name;
    // Who chose colours has them on any desktop.
    EXPECT_EQ(SchemeFor(ColourChoice::Light, desktop, row.icons), ColourScheme::Light) << row.name;
    EXPECT_EQ(SchemeFor(ColourChoice::Dark, desktop, row.icons), ColourScheme::Dark) << row.name;
    const bool isDark =
        row.scheme == ColourScheme::Dark || row.scheme == ColourScheme::WhiteOnBlack;
    EXPECT_EQ(SchemeFor(ColourChoice::HighContrast, desktop, row.icons),
              isDark ? ColourScheme::WhiteOnBlack : ColourScheme::BlackOnWhite)
        << row.name;
  }
}

TEST_F(ColourSchemeTest, WhiteFieldsInGreyWindowsAreNoHighContrast) {
  QPalette desktop = Desktop(kWhite, kBlack);
  desktop.setColor(QPalette::Window, QColor(0xEFEFEF));
  EXPECT_EQ(SchemeFor(ColourChoice::System, desktop, ""), ColourScheme::Light);
  desktop = Desktop(kWhite, kBlack);
  desktop.setColor(QPalette::Button, QColor(0xE0E0E0));
  EXPECT_EQ(SchemeFor(ColourChoice::System, desktop, ""), ColourScheme::Light);
}

TEST_F(ColourSchemeTest, OpenWindowsFollowADesktopThatTurnsDark) {
  const AppEvents events;
  UseColours(ColourChoice::System);
  const auto screen = MakeScientificScreen(*frame_);
  Show(*screen);
  const auto paper = [&] { return screen->grab().toImage().pixelColor(0, 0); };
  const QColor light = paper();
  EXPECT_EQ(light, QColor(241, 243, 246));
  QApplication::setPalette(Desktop(0x2A2E32, 0xFCFCFC));
  EXPECT_EQ(SchemeNow(), ColourScheme::Dark);
  EXPECT_LT(paper().lightness(), 60);
  EXPECT_LT(ContrastBetween(QToolTip::palette().color(QPalette::ToolTipBase), Qt::black), 2);
  QApplication::setPalette(Desktop(kBlack, kWhite));
  EXPECT_EQ(SchemeNow(), ColourScheme::WhiteOnBlack);
  EXPECT_EQ(paper(), QColor(Qt::black));
  QApplication::setPalette(Desktop(0xEFEFEF, kBlack));
  EXPECT_EQ(paper(), light);
}

TEST_F(ColourSchemeTest, WhoChoseColoursKeepsThemOnADesktopThatTurnsDark) {
  const AppEvents events;
  UseColours(ColourChoice::Light);
  QApplication::setPalette(Desktop(0x2A2E32, 0xFCFCFC));
  EXPECT_EQ(SchemeNow(), ColourScheme::Light);
  EXPECT_EQ(ScreenPalette().color(QPalette::Window), QColor(241, 243, 246));
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), QColor(Qt::black));
}

/// What a widget writes in which role of its palette on which.
struct Written {
  QPalette::ColorRole text;
  QPalette::ColorRole paper;
};

/// The pairs that the toolkit paints any widget with.
const std::vector<Written> kWritten{
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
};

/// What cannot be read of `widget`, and colours that are not those of the scheme.
void ExpectReadable(const QWidget& widget) {
  const QPalette palette = widget.palette();
  for (const auto& [text, paper] : kWritten) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      EXPECT_GE(ContrastBetween(palette.color(group, text), palette.color(group, paper)), 4.5)
          << widget.metaObject()->className() << ' ' << widget.objectName().toStdString() << ' '
          << widget.accessibleName().toStdString() << ": " << text << " on " << paper;
    }
  }
  // What is not given colours has those of the desktop, which may be anything.
  EXPECT_EQ(palette.color(QPalette::Highlight), ScreenPalette().color(QPalette::Highlight))
      << widget.metaObject()->className() << ' ' << widget.accessibleName().toStdString();
}

class EveryScheme : public ColourSchemeTest, public testing::WithParamInterface<ColourChoice> {};

TEST_P(EveryScheme, EveryWidgetOfEveryWindowHasColoursOfItThatCanBeRead) {
  // A desktop whose colours nobody could mix with ours unseen.
  QApplication::setPalette(Desktop(0xFF00FF, 0x00FFFF));
  const AppEvents events;
  std::size_t visited = 0;
  UseColours(GetParam());
  VisitAll([&](QWidget& window) {
    ExpectReadable(window);
    for (auto* widget : window.findChildren<QWidget*>()) {
      if (widget->windowType() == Qt::Popup) widget->ensurePolished();
      ExpectReadable(*widget);
      ++visited;
    }
  });
  EXPECT_GT(visited, 500U);
}

INSTANTIATE_TEST_SUITE_P(Choices, EveryScheme,
                         testing::Values(ColourChoice::Light, ColourChoice::Dark,
                                         ColourChoice::HighContrast));

TEST_F(ColourSchemeTest, EveryOpenWindowTakesOtherColoursAtOnce) {
  UseColours(ColourChoice::Light);
  VisitAll([&](QWidget& window) {
    UseColours(ColourChoice::Dark);
    ExpectReadable(window);
    for (auto* widget : window.findChildren<QWidget*>()) {
      // A menu has its colours from when it is shown first.
      if (qobject_cast<QMenu*>(widget) == nullptr) ExpectReadable(*widget);
    }
    const QImage dark = window.grab().toImage();
    EXPECT_LT(dark.pixelColor(0, 0).lightness(), 60);
    UseColours(ColourChoice::Light);
    EXPECT_GT(window.grab().toImage().pixelColor(0, 0).lightness(), 200);
  });
}

}  // namespace
}  // namespace kav::test::colour_scheme_test
