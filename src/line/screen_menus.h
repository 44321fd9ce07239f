// The pop-up menus of the scientific screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/calc_modes.h"
#include "line/history.h"

namespace kav {

/// Whether an item is the one in force, in a menu that shows it.
enum class MenuMark { None, Unset, Set };

/// One line of a pop-up menu; a separator has no text and no id. Ids are positive.
struct MenuItem {
  int id = 0;
  std::u16string text;
  MenuMark mark = MenuMark::None;
  std::u16string whole = {};  ///< what `text` is the beginning of; empty if it is not cut

  bool IsSeparator() const { return id == 0; }
  /// `whole` tells nothing more about which item it is.
  bool operator==(const MenuItem& other) const {
    return id == other.id && text == other.text && mark == other.mark;
  }
};
using Menu = std::vector<MenuItem>;

/// The ids of the memory menu.
namespace memory_item {
inline constexpr int kConstants = 1;
inline constexpr int kStoreVariable = 3;
inline constexpr int kRecallVariable = 4;
inline constexpr int kClear = 6;
inline constexpr int kRecall = 7;
inline constexpr int kSubtract = 8;
inline constexpr int kAdd = 9;
}  // namespace memory_item

/// The entries of `history` that have a text, the newest on top, each with its number (from 1) as
/// its id.
Menu BuildHistoryMenu(const History& history);

/// The four bases, of which `inForce` is marked.
Menu BuildBaseMenu(BaseMode inForce);
/// The base that an item of the base menu stands for; nullopt for an id it does not have.
std::optional<BaseMode> BaseOfItem(int id);
/// The short name of `base`, as the base key shows it.
std::u16string_view BaseCaption(BaseMode base);

/// The short name of `unit`, as the angle key shows it.
std::u16string_view AngleCaption(AngleUnit unit);

/// The memory menu. Items that use the answer are offered only if `errorText` is empty.
Menu BuildMemoryMenu(std::u16string_view errorText);

/// Whether `menu` has an item of that id.
bool Offers(const Menu& menu, int id);

}  // namespace kav
