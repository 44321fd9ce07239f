// A screen with keys.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "display/display_settings_model.h"
#include "line/key_request.h"
#include "line/screen_menus.h"
#include "screens/widgets/held_control.h"
#include "screens/widgets/key_sheet.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/screen.h"

namespace kav {

/// The keys, the pop-up menus below them, the menus of the menu bar, and the dialogs that the keys
/// of several screens ask for. It knows a key by its number; screens derive from KeyScreenOf.
class KeyScreen : public Screen {
 public:
  /// `size` is that of the body in dialog units.
  KeyScreen(Frame& frame, QSize size) : Screen(frame, size) {}

 protected:
  /// Hands what was typed into the widgets to the model.
  virtual void TakeLine() = 0;
  /// Shows what the model holds.
  virtual void Refresh() = 0;
  // What the Edit menu does.
  virtual void Edit(EditCommand command) = 0;
  virtual bool CanEdit(EditCommand command) const = 0;
  /// Entries below those of the Edit menu that every screen has.
  virtual std::vector<MenuEntry> MoreToEdit() { return {}; }
  /// What the Edit menu does with results.
  virtual ResultEntries EntriesOfResult() { return {}; }

  /// Makes the keys: once, after what the Tab key is to reach before them.
  void AddKeys(std::vector<KeySpot> keys);
  KeySheet& Keys() const { return *keys_; }

  /// Where the menu of the key of that number opens; nullopt: below the key.
  virtual std::optional<MenuPlace> PlaceOfMenu(int) const { return std::nullopt; }

  /// Opens `items`, if there are any, at the place for the menu of the key of that number; `choose`
  /// is called with the id of the chosen one.
  void PopUp(const Menu& items, int key, const std::function<void(int)>& choose);

  /// The File, Edit, Mode and Help menus of the screen `mode`; `page` of the display settings opens
  /// first, and `takeDisplaySettings` is called when they have changed.
  void AddMenus(ScreenMode mode, DisplayPage page,
                const std::function<void()>& takeDisplaySettings);

  const ScreenDialogs& Dialogs() const { return ParentFrame().Dialogs(); }

  bool event(QEvent* event) override;

  // What keys ask for, as far as nothing comes back.
  void Do(const Nothing&) {}
  void Do(const TellStop& request);
  void Do(const TellNotice& request);
  void Do(const OpenMacroEditor& request);
  void Do(const StoreMemoryVariable& request);
  /// The text of the variable that the user chose.
  std::optional<std::u16string> RecallVariable();

 private:
  virtual void OnKeyNumber(int key) = 0;
  void OpenKeys() override;
  std::function<void()> Opening(const std::function<void(QWidget*)>& open);

  KeySheet* keys_ = nullptr;
  HeldControl held_{[this](KeyLettering lettering) { keys_->Show(lettering); }};
};

/// A KeyScreen, or one of its kinds (`Base`), as the picture of a `Model` that has a `Key` for each
/// of its keys: hands over what is tapped, and carries out what the model asks for.
template <class Key, class Model, class Base = KeyScreen>
class KeyScreenOf : public Base {
 protected:
  using Request = decltype(std::declval<Model&>().Press(Key()));
  using Base::Do;

  /// The model may be a member of the class that derives from this one. `rest` is for Base.
  template <class... Rest>
  explicit KeyScreenOf(Model& model, Rest&&... rest)
      : Base(std::forward<Rest>(rest)...), model_(model) {}

  /// A key was pressed.
  virtual void OnKey(Key key) {
    this->TakeLine();
    Follow(model_.Press(key));
  }
  /// Shows what the model did, and then carries out what it asks for.
  void Follow(const Request& request) {
    this->Refresh();
    CarryOut(request);
  }
  /// Calls the Do for what `request` holds.
  virtual void CarryOut(const Request& request) = 0;
  /// The question that `key` raises was answered with Yes.
  virtual void OnYes(Key) {}

  void RefreshKeys() {
    this->Keys().Refresh([this](int number) {
      const Key key = static_cast<Key>(number);
      KeyState state{model_.Caption(key), model_.IsEnabled(key)};
      // A model that hides none of its keys does not say which are visible.
      if constexpr (requires { model_.IsVisible(key); }) state.isVisible = model_.IsVisible(key);
      return state;
    });
  }

  void Do(const ShowMenu<Key>& request) {
    this->PopUp(model_.MenuOf(request.key), static_cast<int>(request.key),
                [this, key = request.key](int id) { Follow(model_.Choose(key, id)); });
  }
  void Do(const AskFirst<Key>& request) {
    if (AskYesNo(this, request.question)) OnYes(request.key);
    this->Refresh();
  }
  void Do(const OpenMacroList&) {
    if (const auto index = this->Dialogs().macroList(this)) model_.TakeMacro(*index);
    this->Refresh();
  }
  void Do(const OpenConverter& request) {
    const ConverterOutcome outcome = this->Dialogs().converter(this, request.input);
    this->ParentFrame().SaveStore();
    model_.TakeConverter(outcome);
    this->Refresh();
  }
  void Do(const RecallMemoryVariable&) {
    const auto value = this->RecallVariable();
    Follow(value ? model_.TakeVariable(*value) : Request(Nothing{}));
  }
  void Do(const OpenConstants&) {
    const auto value = this->Dialogs().constants(this);
    Follow(value ? model_.TakeConstant(*value) : Request(Nothing{}));
  }

 private:
  void OnKeyNumber(int key) final { OnKey(static_cast<Key>(key)); }

  Model& model_;
};

/// Whether `event` types into a line or edits it, and so is of use to one that does not have the
/// focus.
bool IsTyping(const QKeyEvent& event);

/// A place of the tables of keys, in dialog units.
inline QRect UnitsOf(const LinePlace& place) {
  return {place.x, place.y, place.width, place.height};
}

/// Whether `key` goes on working while it is held: those that delete a character do.
template <class K>
bool RepeatsWhenHeld(K key) {
  if constexpr (requires { K::Backspace; }) return key == K::Backspace || key == K::Delete;
  return false;
}

/// The keys of the rows of a keypad.
template <class Rows>
std::vector<KeySpot> SpotsOf(const Rows& rows) {
  std::vector<KeySpot> spots;
  spots.reserve(rows.size());
  for (const auto& row : rows) {
    spots.push_back({static_cast<int>(row.key), UnitsOf(row.place), row.colour, CaptionsOf(row),
                     row.shortcut, RepeatsWhenHeld(row.key)});
  }
  return spots;
}

}  // namespace kav
