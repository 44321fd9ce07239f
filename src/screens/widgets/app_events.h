// What events mean in the whole program, whichever widget they are for.
#pragma once

#include <QObject>

namespace kav {

/// While it lives, the separator key of a keyboard's number pad writes a point, whatever the
/// keyboard has on it: numbers are written with one. Ctrl+Y redoes wherever Ctrl+Shift+Z does. A
/// double click into a text selects a whole number or name. The menus that fields of text, and the
/// boxes that dialogs for files make by themselves look like all others. And all windows follow the
/// colours of a desktop that changes them.
class AppEvents final : public QObject {
 public:
  AppEvents();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kav
