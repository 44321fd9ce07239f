// All colours of the program: each thing that has one, and what it is in each scheme.
#pragma once

#include <QColor>
#include <QPalette>

namespace kav {

/// Light is the one that the keys were made for; Dark has the same hues at a luminance for dark
/// rooms; the others are for those who need the strongest contrast.
enum class ColourScheme { Light, Dark, BlackOnWhite, WhiteOnBlack };

/// What has a colour. "Paper" is what stands below a text.
enum class Colour {
  // The roles of the toolkit's palette.
  Window,
  WindowText,
  Base,
  Text,
  DisabledText,
  PlaceholderText,
  AlternateBase,
  Button,
  ButtonText,
  BrightText,
  Light,
  Midlight,
  Mid,
  Dark,
  Shadow,
  Highlight,
  HighlightedText,
  Link,
  LinkVisited,
  ToolTipBase,
  ToolTipText,
  // Beside the portrait area of a wide window.
  Backdrop,
  // Keys, and what their edges are mixed with.
  DigitKey,
  DigitKeyText,
  OrangeKey,
  OrangeKeyText,
  ActiveShiftKey,
  ActiveShiftKeyText,
  ModeKey,
  ModeKeyText,
  EditingKey,
  EditingKeyText,
  EqualsKey,
  EqualsKeyText,
  FunctionKey,
  FunctionKeyText,
  KeyEdge,
  // Fields and choices.
  ResultPaper,
  ResultText,
  RefusedPaper,
  ChoicesPaper,
  // The grid. A marked cell is one that is wrong.
  GridLine,
  MarkedPaper,
  MarkedText,
  SelectedPaper,
  SelectedHeader,
  // Before a message: a character on a disc.
  SignText,
  StopSign,
  WarningSign,
  WarningSignText,
  QuestionSign,
  // Graphs on the screen. Those that are saved always have the colours of Light.
  GraphPaper,
  GraphInk,
  GraphGrid,
  GraphAxis,
  GraphMarker,
  FirstCurve,
  SecondCurve,
  ThirdCurve,  ///< the discs of data points too
};

QColor ColourIn(ColourScheme scheme, Colour what);

/// Whether what has an edge is told from its ground by that alone.
inline bool HasStrongEdges(ColourScheme scheme) {
  return scheme == ColourScheme::BlackOnWhite || scheme == ColourScheme::WhiteOnBlack;
}

/// Has all roles of all groups, so that nothing of it comes from the desktop. Active and inactive
/// windows have the same one: those behind the one in front need no new painting.
QPalette PaletteIn(ColourScheme scheme);

/// `share` (0 to 1) of `colour`, the rest of `other`; both opaque.
QColor Mixed(const QColor& colour, const QColor& other, double share);

/// How well two opaque colours can be told apart: from 1, not at all, to 21, black and white. Texts
/// are read with ease from 4.5 on.
double ContrastBetween(const QColor& one, const QColor& other);

}  // namespace kav
