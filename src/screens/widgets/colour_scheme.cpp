#include "screens/widgets/colour_scheme.h"

#include <QApplication>
#include <QIcon>
#include <QToolTip>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace kav {
namespace {

/// Where a widget keeps its attire.
constexpr const char* kAttire = "kavAttire";

struct Worn {
  ColourChoice choice = ColourChoice::Light;
  ColourScheme scheme = ColourScheme::Light;
};
Worn& WornNow() {
  static Worn worn;
  return worn;
}

using PaperAndText = std::pair<QPalette::ColorRole, QPalette::ColorRole>;

constexpr std::array kPapers{PaperAndText{QPalette::Window, QPalette::WindowText},
                             PaperAndText{QPalette::Base, QPalette::Text},
                             PaperAndText{QPalette::Button, QPalette::ButtonText}};

bool HasHighContrast(const QPalette& desktop, const QString& icons) {
  constexpr double kHighContrast = 20;
  if (icons.startsWith(QLatin1String("HighContrast"), Qt::CaseInsensitive)) return true;
  return std::all_of(kPapers.begin(), kPapers.end(), [&](const PaperAndText& roles) {
    return ContrastBetween(desktop.color(roles.first), desktop.color(roles.second)) >=
           kHighContrast;
  });
}

bool IsDark(const QPalette& desktop) {
  return desktop.color(QPalette::WindowText).lightness() >
         desktop.color(QPalette::Window).lightness();
}

struct AttirePart {
  QPalette::ColorRole role;
  Colour what;
};

std::span<const AttirePart> PartsOf(Attire attire) {
  static constexpr std::array kResult{AttirePart{QPalette::Base, Colour::ResultPaper},
                                      AttirePart{QPalette::Text, Colour::ResultText}};
  static constexpr std::array kRefusable{AttirePart{QPalette::Base, Colour::Base}};
  static constexpr std::array kRefused{AttirePart{QPalette::Base, Colour::RefusedPaper}};
  static constexpr std::array kChoices{AttirePart{QPalette::Window, Colour::ChoicesPaper}};
  switch (attire) {
    case Attire::Window:
      break;
    case Attire::Result:
      return kResult;
    case Attire::Refusable:
      return kRefusable;
    case Attire::Refused:
      return kRefused;
    case Attire::Choices:
      return kChoices;
  }
  return {};
}

void PutOn(QWidget& widget, Attire attire) {
  if (attire == Attire::Window) return widget.setPalette(ScreenPalette());
  QPalette colours;
  for (const auto& [role, what] : PartsOf(attire)) colours.setColor(role, ColourNow(what));
  widget.setPalette(colours);
}

void DressAll() {
  for (QWidget* widget : QApplication::allWidgets()) {
    const QVariant attire = widget->property(kAttire);
    if (attire.isValid()) PutOn(*widget, static_cast<Attire>(attire.toInt()));
  }
}

}  // namespace

ColourScheme SchemeFor(ColourChoice choice, const QPalette& desktop, const QString& icons) {
  const bool isStrong = choice == ColourChoice::HighContrast ||
                        (choice == ColourChoice::System && HasHighContrast(desktop, icons));
  const bool isDark =
      choice == ColourChoice::Dark || (choice != ColourChoice::Light && IsDark(desktop));
  if (isStrong) return isDark ? ColourScheme::WhiteOnBlack : ColourScheme::BlackOnWhite;
  return isDark ? ColourScheme::Dark : ColourScheme::Light;
}

void UseColours(ColourChoice choice) {
  WornNow().choice = choice;
  FollowDesktop();
}

void FollowDesktop() {
  Worn& worn = WornNow();
  const ColourScheme scheme =
      SchemeFor(worn.choice, QGuiApplication::palette(), QIcon::themeName());
  if (std::exchange(worn.scheme, scheme) != scheme) DressAll();
  // The desktop has colours of its own for these.
  QToolTip::setPalette(ScreenPalette());
}

ColourScheme SchemeNow() {
  return WornNow().scheme;
}

QColor ColourNow(Colour what) {
  return ColourIn(SchemeNow(), what);
}

const QPalette& ScreenPalette() {
  static ColourScheme made = SchemeNow();
  static QPalette palette = PaletteIn(made);
  if (made != SchemeNow()) palette = PaletteIn(made = SchemeNow());
  return palette;
}

void Wear(QWidget& widget, Attire attire) {
  widget.setProperty(kAttire, static_cast<int>(attire));
  PutOn(widget, attire);
}

}  // namespace kav
