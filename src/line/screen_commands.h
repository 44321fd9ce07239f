// What the keyboard does on every screen, whatever has the focus.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace kav {

/// What every screen can be told. The screens have the order of their numbers in the settings.
enum class ScreenCommand {
  Guide,
  Keys,
  Config,
  FullScreen,
  Scientific,
  Plotter,
  OneVariable,
  TwoVariable,
  Matrix,
  Exit,
  CopyLine,
  LargerText,
  SmallerText,
  UsualText
};

struct ShortcutRow {
  /// Such as "Ctrl+Q"; several with "; " between them.
  std::string_view keys;
  /// nullopt: what has the focus, or the screen's own keyboard, does it.
  std::optional<ScreenCommand> command;
  std::u16string_view text;  ///< what it does, for the list of keys
};

/// The table of all of them, in the order of the list of keys.
std::span<const ShortcutRow> ScreenShortcuts();

/// The keys of `command`; empty if it has none.
std::string_view ShortcutOf(ScreenCommand command);

}  // namespace kav
