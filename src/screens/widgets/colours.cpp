#include "screens/widgets/colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "plotter/graph_picture.h"

namespace kav {
namespace {

/// 0xRRGGBB in each scheme, in the order of ColourScheme.
using Shades = std::array<QRgb, 4>;

struct ColourRow {
  Colour what;
  Shades shades;
};

constexpr QRgb kWhite = 0xFFFFFF;
constexpr QRgb kBlack = 0x000000;

// In the order of Colour.
constexpr std::array kColours{
    ColourRow{Colour::Window, {0xF1F3F6, 0x202327, kWhite, kBlack}},
    ColourRow{Colour::WindowText, {kBlack, 0xEEF0F3, kBlack, kWhite}},
    ColourRow{Colour::Base, {kWhite, 0x16181B, kWhite, kBlack}},
    ColourRow{Colour::Text, {kBlack, 0xEEF0F3, kBlack, kWhite}},
    ColourRow{Colour::DisabledText, {0x808080, 0x868C93, 0x595959, 0xB0B0B0}},
    ColourRow{Colour::PlaceholderText, {0x686868, 0xA0A6AC, 0x404040, 0xC8C8C8}},
    ColourRow{Colour::AlternateBase, {0xF4F5F7, 0x1C1F22, kWhite, kBlack}},
    ColourRow{Colour::Button, {0xE9ECF0, 0x2D3136, kWhite, kBlack}},
    ColourRow{Colour::ButtonText, {kBlack, 0xEEF0F3, kBlack, kWhite}},
    ColourRow{Colour::BrightText, {kWhite, kWhite, kWhite, kWhite}},
    ColourRow{Colour::Light, {kWhite, 0x4A5057, kBlack, kWhite}},
    ColourRow{Colour::Midlight, {0xF4F5F7, 0x3A3F45, 0xE0E0E0, 0x303030}},
    ColourRow{Colour::Mid, {0xADB5BD, 0x707880, kBlack, kWhite}},
    ColourRow{Colour::Dark, {0x757678, 0x8A9199, kBlack, kWhite}},
    ColourRow{Colour::Shadow, {kBlack, kBlack, kBlack, kWhite}},
    ColourRow{Colour::Highlight, {0x006EBE, 0x5CACF0, 0x0000B0, 0xFFFF00}},
    ColourRow{Colour::HighlightedText, {kWhite, kBlack, kWhite, kBlack}},
    ColourRow{Colour::Link, {0x0000FF, 0x7FB8FF, 0x0000B0, 0xFFFF00}},
    ColourRow{Colour::LinkVisited, {0x800080, 0xD9A6FF, 0x800080, 0xFFB0FF}},
    ColourRow{Colour::ToolTipBase, {0xFFFFDC, 0x363410, kWhite, kBlack}},
    ColourRow{Colour::ToolTipText, {kBlack, 0xFFFFC8, kBlack, kWhite}},
    ColourRow{Colour::Backdrop, {0xD6DBE1, 0x131517, kWhite, kBlack}},
    ColourRow{Colour::DigitKey, {kWhite, 0x282B30, kWhite, kBlack}},
    ColourRow{Colour::DigitKeyText, {0xFF0000, 0xFF8C82, kBlack, kWhite}},
    ColourRow{Colour::OrangeKey, {0xFFC07E, 0x703E0E, kWhite, kBlack}},
    ColourRow{Colour::OrangeKeyText, {kBlack, 0xFFE2C2, kBlack, kWhite}},
    // What is on differs from what is off as black from orange, on dark paper the other way round.
    ColourRow{Colour::ActiveShiftKey, {kBlack, 0xFFC07E, kBlack, kWhite}},
    ColourRow{Colour::ActiveShiftKeyText, {0xFFC07E, kBlack, kWhite, kBlack}},
    ColourRow{Colour::ModeKey, {0xBDC0FF, 0x3E3E82, kWhite, kBlack}},
    ColourRow{Colour::ModeKeyText, {kBlack, 0xE2E3FF, kBlack, kWhite}},
    ColourRow{Colour::EditingKey, {0xFEC0BE, 0x782A2E, kWhite, kBlack}},
    ColourRow{Colour::EditingKeyText, {kBlack, 0xFFDEDC, kBlack, kWhite}},
    ColourRow{Colour::EqualsKey, {0x0096DE, 0x005480, kBlack, kWhite}},
    ColourRow{Colour::EqualsKeyText, {0xFFFF00, 0xFFFF00, kWhite, kBlack}},
    ColourRow{Colour::FunctionKey, {0xC0FFC0, 0x1C4C24, kWhite, kBlack}},
    ColourRow{Colour::FunctionKeyText, {kBlack, 0xD6FFD6, kBlack, kWhite}},
    ColourRow{Colour::KeyEdge, {0x46505A, 0xAAB4BE, kBlack, kWhite}},
    ColourRow{Colour::ResultPaper, {0xFFFFC0, 0x363410, kWhite, kBlack}},
    ColourRow{Colour::ResultText, {kBlack, 0xFFFFC8, kBlack, kWhite}},
    ColourRow{Colour::RefusedPaper, {0xFFD0D0, 0x621E22, 0xFFD0D0, 0x800000}},
    ColourRow{Colour::ChoicesPaper, {0xC0FFC0, 0x1C4C24, kWhite, kBlack}},
    ColourRow{Colour::GridLine, {0xC8CED5, 0x464C53, kBlack, kWhite}},
    ColourRow{Colour::MarkedPaper, {0xFFE2D6, 0x502416, 0xFFD0D0, 0x800000}},
    ColourRow{Colour::MarkedText, {0xA51E00, 0xFFBEA8, kBlack, kWhite}},
    ColourRow{Colour::SelectedPaper, {0xCCE2F4, 0x183C5C, 0xFFFF90, 0x0000B0}},
    ColourRow{Colour::SelectedHeader, {0xBBCDDE, 0x32465C, 0xFFFF90, 0x0000B0}},
    ColourRow{Colour::SignText, {kWhite, kWhite, kWhite, kWhite}},
    ColourRow{Colour::StopSign, {0xC81E1E, 0xC81E1E, 0xC81E1E, 0xC81E1E}},
    ColourRow{Colour::WarningSign, {0xD78200, 0xD78200, 0xD78200, 0xD78200}},
    ColourRow{Colour::WarningSignText, {kBlack, kBlack, kBlack, kBlack}},
    ColourRow{Colour::QuestionSign, {0x006EBE, 0x006EBE, 0x006EBE, 0x006EBE}},
    ColourRow{Colour::GraphPaper, {graph_colour::kPaper, 0x16181B, kWhite, kBlack}},
    ColourRow{Colour::GraphInk, {graph_colour::kInk, 0xEEF0F3, kBlack, kWhite}},
    ColourRow{Colour::GraphGrid, {graph_colour::kGrid, 0x42474D, 0x909090, 0x808080}},
    ColourRow{Colour::GraphAxis, {graph_colour::kAxis, 0x00B0B2, kBlack, kWhite}},
    ColourRow{Colour::GraphMarker, {graph_colour::kMarker, 0xFF9632, 0xA04000, 0xFFB060}},
    ColourRow{Colour::FirstCurve, {graph_colour::kCurves[0], 0xFF6060, 0xC00000, 0xFF8080}},
    ColourRow{Colour::SecondCurve, {graph_colour::kCurves[1], 0x40E050, 0x007000, 0x60FF60}},
    ColourRow{Colour::ThirdCurve, {graph_colour::kCurves[2], 0x6EA0FF, 0x0000C0, 0x80B0FF}},
};

constexpr bool StandsInOrder() {
  for (std::size_t i = 0; i < kColours.size(); ++i) {
    if (static_cast<std::size_t>(kColours[i].what) != i) return false;
  }
  return true;
}
static_assert(StandsInOrder());

struct PaletteRow {
  QPalette::ColorRole role;
  Colour what;
};

constexpr std::array kPalette{
    PaletteRow{QPalette::Window, Colour::Window},
    PaletteRow{QPalette::WindowText, Colour::WindowText},
    PaletteRow{QPalette::Base, Colour::Base},
    PaletteRow{QPalette::Text, Colour::Text},
    PaletteRow{QPalette::PlaceholderText, Colour::PlaceholderText},
    PaletteRow{QPalette::AlternateBase, Colour::AlternateBase},
    PaletteRow{QPalette::Button, Colour::Button},
    PaletteRow{QPalette::ButtonText, Colour::ButtonText},
    PaletteRow{QPalette::BrightText, Colour::BrightText},
    PaletteRow{QPalette::Light, Colour::Light},
    PaletteRow{QPalette::Midlight, Colour::Midlight},
    PaletteRow{QPalette::Mid, Colour::Mid},
    PaletteRow{QPalette::Dark, Colour::Dark},
    PaletteRow{QPalette::Shadow, Colour::Shadow},
    PaletteRow{QPalette::Highlight, Colour::Highlight},
    PaletteRow{QPalette::HighlightedText, Colour::HighlightedText},
    PaletteRow{QPalette::Link, Colour::Link},
    PaletteRow{QPalette::LinkVisited, Colour::LinkVisited},
    PaletteRow{QPalette::ToolTipBase, Colour::ToolTipBase},
    PaletteRow{QPalette::ToolTipText, Colour::ToolTipText},
};

/// What a channel of a colour, 0 to 1, adds to its light.
double LightOf(double channel) {
  constexpr double kLinearPart = 0.04045;
  constexpr double kSlope = 12.92;
  constexpr double kOffset = 0.055;
  constexpr double kPower = 2.4;
  if (channel <= kLinearPart) return channel / kSlope;
  return std::pow((channel + kOffset) / (1 + kOffset), kPower);
}

double LuminanceOf(const QColor& colour) {
  return 0.2126 * LightOf(colour.redF()) + 0.7152 * LightOf(colour.greenF()) +
         0.0722 * LightOf(colour.blueF());
}

}  // namespace

QColor ColourIn(ColourScheme scheme, Colour what) {
  const Shades& shades = kColours[static_cast<std::size_t>(what)].shades;
  return QColor::fromRgb(shades[static_cast<std::size_t>(scheme)]);
}

QPalette PaletteIn(ColourScheme scheme) {
  QPalette palette;
  for (const auto& [role, what] : kPalette) {
    palette.setColor(QPalette::All, role, ColourIn(scheme, what));
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, ColourIn(scheme, Colour::Window));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, ColourIn(scheme, Colour::DisabledText));
  }
  return palette;
}

QColor Mixed(const QColor& colour, const QColor& other, double share) {
  const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
  return {mix(colour.red(), other.red()), mix(colour.green(), other.green()),
          mix(colour.blue(), other.blue())};
}

double ContrastBetween(const QColor& one, const QColor& other) {
  constexpr double kGlare = 0.05;  // what even black gives back
  const auto [dark, light] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
  return (light + kGlare) / (dark + kGlare);
}

}  // namespace kav
