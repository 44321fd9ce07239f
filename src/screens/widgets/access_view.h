// The toolkit's widgets as screen readers find them.
#pragma once

class QAbstractItemView;

namespace kav {

/// Every widget that is made from here on is called the same whatever it shows, and what it shows
/// can be read: the chosen entry of a list, the chosen tab, the text of a label that has a name
/// besides. Windows and pictures say what they are. To be called before a window is filled: a
/// screen reader that listens asks for widgets while they are being made. Further calls do nothing.
void OfferWidgetsToScreenReaders();

/// The keyboard goes on from the row that a screen reader selects in `view`, which is scrolled
/// there: the toolkit selects the row alone. To be called when the view has its model.
void LetKeyboardFollow(QAbstractItemView& view);

}  // namespace kav
