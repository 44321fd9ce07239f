// All colours of the program, measured: each text on what stands below it, in each scheme.
#include "screens/widgets/colours.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/key_painter.h"

namespace kav::colours_test {
namespace {

constexpr std::array kSchemes{ColourScheme::Light, ColourScheme::Dark, ColourScheme::BlackOnWhite,
                              ColourScheme::WhiteOnBlack};
constexpr double kReadable = 4.5;
constexpr double kStrong = 7;  ///< for those who need the strongest contrast
constexpr double kSeen = 3;    ///< for what is no text

struct Pair {
  const char* name;
  Colour text;
  Colour paper;
};

const std::vector<Pair>& Pairs() {
  static const std::vector<Pair> pairs{
      {"a label", Colour::WindowText, Colour::Window},
      {"a text beside its field", Colour::Text, Colour::Window},
      {"a field", Colour::Text, Colour::Base},
      {"every other row", Colour::Text, Colour::AlternateBase},
      {"what to type into a field", Colour::PlaceholderText, Colour::Base},
      {"what is not said loudly", Colour::PlaceholderText, Colour::Window},
      {"a quiet text on a result", Colour::PlaceholderText, Colour::ResultPaper},
      {"a heading", Colour::ButtonText, Colour::Button},
      {"a selected text", Colour::HighlightedText, Colour::Highlight},
      {"a link", Colour::Link, Colour::Window},
      {"a link on paper", Colour::Link, Colour::Base},
      {"a visited link", Colour::LinkVisited, Colour::Base},
      {"a tip", Colour::ToolTipText, Colour::ToolTipBase},
      {"a digit key", Colour::DigitKeyText, Colour::DigitKey},
      {"an orange key", Colour::OrangeKeyText, Colour::OrangeKey},
      {"the Shift key while it is on", Colour::ActiveShiftKeyText, Colour::ActiveShiftKey},
      {"a mode key", Colour::ModeKeyText, Colour::ModeKey},
      {"an editing key", Colour::EditingKeyText, Colour::EditingKey},
      {"=", Colour::EqualsKeyText, Colour::EqualsKey},
      {"a function key", Colour::FunctionKeyText, Colour::FunctionKey},
      {"a result", Colour::ResultText, Colour::ResultPaper},
      {"a refused value", Colour::Text, Colour::RefusedPaper},
      {"a choice", Colour::WindowText, Colour::ChoicesPaper},
      {"a header of the grid", Colour::Text, Colour::SelectedHeader},
      {"a selected cell", Colour::Text, Colour::SelectedPaper},
      {"a wrong cell", Colour::MarkedText, Colour::MarkedPaper},
      {"a wrong cell that is selected", Colour::MarkedText, Colour::SelectedPaper},
      {"the focus cell that is wrong", Colour::MarkedText, Colour::MarkedPaper},
      {"the sign of a stop", Colour::SignText, Colour::StopSign},
      {"the sign of a warning", Colour::WarningSignText, Colour::WarningSign},
      {"the sign of a question", Colour::SignText, Colour::QuestionSign},
      {"a label of a graph", Colour::GraphInk, Colour::GraphPaper},
  };
  return pairs;
}

double ContrastIn(ColourScheme scheme, const Pair& pair) {
  return ContrastBetween(ColourIn(scheme, pair.text), ColourIn(scheme, pair.paper));
}

TEST(Colours, ContrastIsThatOfThePublishedFormula) {
  const auto contrast = [](QRgb one, QRgb other) {
    return ContrastBetween(QColor(one), QColor(other));
  };
  EXPECT_DOUBLE_EQ(contrast(0x000000, 0xFFFFFF), 21);
  EXPECT_DOUBLE_EQ(contrast(0xFFFFFF, 0x000000), 21);
  EXPECT_DOUBLE_EQ(contrast(0x808080, 0x808080), 1);
  // The lightest grey that is readable on white, and the first that is not.
  EXPECT_NEAR(contrast(0x767676, 0xFFFFFF), 4.54, 0.005);
  EXPECT_NEAR(contrast(0x777777, 0xFFFFFF), 4.48, 0.005);
  EXPECT_NEAR(contrast(0xFF0000, 0xFFFFFF), 4.00, 0.005);
  EXPECT_NEAR(contrast(0x00FF00, 0x000000), 15.30, 0.005);
}

TEST(Colours, EveryTextIsReadableButTwoWhoseColoursAreFixed) {
  // Red digits on white and yellow on blue are how these keys look in light colours.
  const std::vector<std::tuple<QRgb, QRgb, double>> fixed{{0xFF0000, 0xFFFFFF, 4.00},
                                                          {0xFFFF00, 0x0096DE, 3.05}};
  std::size_t exceptions = 0;
  for (const ColourScheme scheme : kSchemes) {
    for (const Pair& pair : Pairs()) {
      const double contrast = ContrastIn(scheme, pair);
      const QRgb text = ColourIn(scheme, pair.text).rgb() & RGB_MASK;
      const QRgb paper = ColourIn(scheme, pair.paper).rgb() & RGB_MASK;
      const auto isPair = [&](const auto& row) {
        return std::get<0>(row) == text && std::get<1>(row) == paper;
      };
      const auto exception = std::find_if(fixed.begin(), fixed.end(), isPair);
      if (exception == fixed.end()) {
        EXPECT_GE(contrast, kReadable) << pair.name << " in scheme " << static_cast<int>(scheme);
      } else {
        EXPECT_EQ(scheme, ColourScheme::Light) << pair.name;
        EXPECT_NEAR(contrast, std::get<2>(*exception), 0.005) << pair.name;
        ++exceptions;
      }
    }
  }
  EXPECT_EQ(exceptions, fixed.size());
}

TEST(Colours, StrongSchemesAreStrong) {
  for (const auto scheme : {ColourScheme::BlackOnWhite, ColourScheme::WhiteOnBlack}) {
    for (const Pair& pair : Pairs()) {
      const bool isSign = pair.text == Colour::SignText || pair.text == Colour::WarningSignText;
      EXPECT_GE(ContrastIn(scheme, pair), isSign ? kReadable : kStrong) << pair.name;
    }
    for (const auto paper : {Colour::Window, Colour::Base, Colour::Button, Colour::FunctionKey}) {
      EXPECT_EQ(ColourIn(scheme, paper) == QColor(Qt::white), scheme == ColourScheme::BlackOnWhite);
      EXPECT_EQ(ColourIn(scheme, paper) == QColor(Qt::black), scheme == ColourScheme::WhiteOnBlack);
    }
    for (const auto edge : {Colour::Mid, Colour::KeyEdge, Colour::Dark}) {
      EXPECT_DOUBLE_EQ(ContrastIn(scheme, {"an edge", edge, Colour::Window}), 21);
    }
  }
}

TEST(Colours, FocusEdgesAndCurvesAreSeenOnWhatIsBelow) {
  for (const ColourScheme scheme : kSchemes) {
    const auto seen = [scheme](Colour what, Colour ground) {
      return ContrastIn(scheme, {"", what, ground});
    };
    for (const auto ground : {Colour::Window, Colour::Base}) {
      EXPECT_GE(seen(Colour::Highlight, ground), kSeen) << static_cast<int>(scheme);
    }
    if (scheme == ColourScheme::Light) continue;  // whose edges and curves are fixed
    for (const auto what : {Colour::Mid, Colour::Dark}) {
      EXPECT_GE(seen(what, Colour::Window), kSeen) << static_cast<int>(scheme);
    }
    for (const auto what : {Colour::GraphAxis, Colour::GraphMarker, Colour::FirstCurve,
                            Colour::SecondCurve, Colour::ThirdCurve}) {
      EXPECT_GE(seen(what, Colour::GraphPaper), kReadable) << static_cast<int>(scheme);
    }
  }
}

TEST(Colours, DarkKeysKeepTheirHues) {
  struct Row {
    Colour what;
    int hue;
  };
  // The hues of the light colours: in degrees from red by green and blue.
  for (const auto& [what, hue] : std::vector<Row>{{Colour::DigitKeyText, 0},
                                                  {Colour::OrangeKey, 31},
                                                  {Colour::ModeKey, 237},
                                                  {Colour::EditingKey, 2},
                                                  {Colour::EqualsKey, 199},
                                                  {Colour::EqualsKeyText, 60},
                                                  {Colour::FunctionKey, 120},
                                                  {Colour::ResultPaper, 60},
                                                  {Colour::ChoicesPaper, 120},
                                                  {Colour::FirstCurve, 0},
                                                  {Colour::SecondCurve, 120},
                                                  {Colour::ThirdCurve, 240}}) {
    EXPECT_NEAR(ColourIn(ColourScheme::Light, what).hsvHue(), hue, 1) << static_cast<int>(what);
    const int turned = std::abs(ColourIn(ColourScheme::Dark, what).hsvHue() - hue);
    EXPECT_LE(std::min(turned, 360 - turned), 25) << static_cast<int>(what);
  }
}

TEST(Colours, APaletteHasARoleOfItsOwnForEverythingTheToolkitPaints) {
  for (const ColourScheme scheme : kSchemes) {
    const QPalette palette = PaletteIn(scheme);
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
      if (role == QPalette::NoRole) continue;
      for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_TRUE(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role)))
            << role << " in group " << group;
      }
      EXPECT_EQ(palette.color(QPalette::Active, static_cast<QPalette::ColorRole>(role)),
                palette.color(QPalette::Inactive, static_cast<QPalette::ColorRole>(role)));
    }
  }
}

TEST(Colours, ATouchedOrHeldKeyCanStillBeRead) {
  QPushButton key;
  for (const auto& [choice, scheme] :
       {std::pair(ColourChoice::Light, ColourScheme::Light),
        std::pair(ColourChoice::Dark, ColourScheme::Dark),
        std::pair(ColourChoice::HighContrast, ColourScheme::BlackOnWhite)}) {
    UseColours(choice);
    ASSERT_EQ(SchemeNow(), scheme);
    for (const Pair& pair : Pairs()) {
      const bool isKey = pair.paper >= Colour::DigitKey && pair.paper <= Colour::FunctionKeyText;
      if (!isKey || ContrastIn(scheme, pair) < kReadable) continue;
      for (const bool isHeld : {false, true}) {
        key.setDown(isHeld);
        key.setAttribute(Qt::WA_UnderMouse);
        const KeyColours now =
            ColoursNow(key, {ColourIn(scheme, pair.paper), ColourIn(scheme, pair.text)});
        EXPECT_NE(now.background, ColourIn(scheme, pair.paper));
        EXPECT_GE(ContrastBetween(now.background, now.text), kReadable)
            << pair.name << " in scheme " << static_cast<int>(scheme);
      }
    }
  }
  UseColours(ColourChoice::Light);
}

TEST(Colours, AKeyThatIsOfNoUseIsReadInStrongColours) {
  QPushButton key;
  key.setEnabled(false);
  UseColours(ColourChoice::HighContrast);
  Wear(key, Attire::Window);
  const KeyColours now =
      ColoursNow(key, {ColourNow(Colour::EqualsKey), ColourNow(Colour::EqualsKeyText)});
  EXPECT_GE(ContrastBetween(now.background, now.text), kStrong);
  EXPECT_NE(now.text, ColourNow(Colour::FunctionKeyText));
  UseColours(ColourChoice::Light);
}

}  // namespace
}  // namespace kav::colours_test
