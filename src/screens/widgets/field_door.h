// What comes into a field, by whichever way, becomes the calculator's own spelling.
#pragma once

#include <functional>

class QLineEdit;
class QWidget;

namespace kav {

class FormulaView;

/// When a field asks about commas that can be read in two ways.
enum class DoorKind {
  Line,    ///< as soon as they are pasted, and before the line is taken
  Number,  ///< the same, and when the keyboard leaves the field
  Cell,    ///< never by itself: who takes the text asks
};

/// From here on what is typed, pasted and dropped into `field`, or put there by a screen reader, is
/// spelled as OwnSpelling does; with what comes in at once this is one step for undo. Commas that
/// are to be asked about are asked about beside the field. To be called after other receivers of
/// the field's changes were connected: those before see the foreign spelling first.
void OpenDoor(QLineEdit& field, DoorKind kind);
void OpenDoor(FormulaView& field);

/// To be called before what stands in the fields within `parent`, or in `parent` itself, is taken.
/// Spells what was typed into them; answers true if one of them asks about a comma. Then nothing is
/// to be taken yet: `goOn` is called after the answer. Whoever leaves the text as it is is not
/// asked again until the text has changed.
bool AsksFirst(const QWidget& parent, const std::function<void()>& goOn);

}  // namespace kav
