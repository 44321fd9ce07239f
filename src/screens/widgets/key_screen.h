// A screen with keys that edit an expression.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "display/display_settings_model.h"
#include "line/key_request.h"
#include "line/screen_menus.h"
#include "screens/widgets/key_sheet.h"
#include "screens/widgets/screen.h"

namespace kav {

/// The keys, the pop-up menus below them, the menus of the menu bar, and the dialogs that keys ask
/// for.
class KeyScreen : public Screen {
 public:
  /// `size` is that of the body in dialog units.
  KeyScreen(Frame& frame, QSize size) : Screen(frame, size) {}

 protected:
  /// A key was pressed.
  virtual void OnKey(int key) = 0;
  /// Hands what was typed into the widgets to the model.
  virtual void TakeLine() = 0;
  /// Shows what the model holds.
  virtual void Refresh() = 0;
  // What the Edit menu does.
  virtual void Edit(EditCommand command) = 0;
  virtual bool CanEdit(EditCommand command) const = 0;

  /// Makes the keys: once, after what the Tab key is to reach before them.
  void AddKeys(std::vector<KeySpot> keys);
  KeySheet& Keys() const { return *keys_; }

  /// Opens `items` below `key`; once one is chosen, `choose` is called with its id, and all is
  /// refreshed.
  void PopUp(const Menu& items, int key, const std::function<void(int)>& choose);

  /// The File, Edit and Mode menus of the screen `mode`; `page` of the display settings opens
  /// first, and `takeDisplaySettings` is called when they have changed.
  void AddMenus(ScreenMode mode, DisplayPage page,
                const std::function<void()>& takeDisplaySettings);

  // The dialogs that keys ask for; what they bring back.
  const ScreenDialogs& Dialogs() const { return ParentFrame().Dialogs(); }
  void Open(const OpenMacroEditor& request);
  std::optional<int> Open(const OpenMacroList& request);
  ConverterOutcome Open(const OpenConverter& request);
  std::optional<std::u16string> Open(const RecallMemoryVariable& request);
  std::optional<std::u16string> Open(const OpenConstants& request);

 private:
  std::function<void()> Opening(const std::function<void(QWidget*)>& open);

  KeySheet* keys_ = nullptr;
};

/// `items` without those that are not `offered`, and without separators that then separate nothing.
Menu OfferedOf(const Menu& items, const std::function<bool(int)>& offered);

/// Whether `event` types into a line or edits it, and so is of use to one that does not have the
/// focus.
bool IsTyping(const QKeyEvent& event);

/// A place of the tables of keys, in dialog units.
inline QRect UnitsOf(const LinePlace& place) {
  return {place.x, place.y, place.width, place.height};
}

}  // namespace kav
