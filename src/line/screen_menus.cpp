#include "line/screen_menus.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "line/line_texts.h"

namespace kav {
namespace {

/// One base as the base menu and the base key show it.
struct BaseChoice {
  int id;
  BaseMode base;
  std::u16string_view text;
  std::u16string_view caption;
};

constexpr std::array kBaseChoices{
    BaseChoice{32805, BaseMode::Binary, kBinary, kBinaryCaption},
    BaseChoice{32806, BaseMode::Octal, kOctal, kOctalCaption},
    BaseChoice{32807, BaseMode::Decimal, kDecimal, kDecimalCaption},
    BaseChoice{32808, BaseMode::Hexadecimal, kHexadecimal, kHexadecimalCaption},
};

struct MemoryChoice {
  int id;
  std::u16string_view text;
  bool needsAnswer;
};

constexpr MemoryChoice kSeparator{0, {}, false};

constexpr std::array kMemoryChoices{
    MemoryChoice{memory_item::kAdd, kMemoryAdd, true},
    MemoryChoice{memory_item::kSubtract, kMemorySubtract, true},
    MemoryChoice{memory_item::kRecall, kMemoryRecall, false},
    MemoryChoice{memory_item::kClear, kMemoryClear, false},
    kSeparator,
    MemoryChoice{memory_item::kRecallVariable, kRecallVariable, false},
    MemoryChoice{memory_item::kStoreVariable, kStoreVariable, true},
    kSeparator,
    MemoryChoice{memory_item::kConstants, kConstants, false},
};

}  // namespace

Menu BuildHistoryMenu(const History& history) {
  Menu menu;
  const auto& entries = history.Entries();
  for (std::size_t number = entries.size(); number > 0; --number) {
    // A stored count may be larger than the number of stored entries.
    if (entries[number - 1].empty()) continue;
    MenuItem item{static_cast<int>(number), EntryLabel(entries[number - 1])};
    if (item.text != entries[number - 1]) item.whole = entries[number - 1];
    menu.push_back(std::move(item));
  }
  return menu;
}

Menu BuildBaseMenu(BaseMode inForce) {
  Menu menu;
  for (const BaseChoice& choice : kBaseChoices) {
    const MenuMark mark = choice.base == inForce ? MenuMark::Set : MenuMark::Unset;
    menu.push_back({choice.id, std::u16string(choice.text), mark});
  }
  return menu;
}

std::optional<BaseMode> BaseOfItem(int id) {
  for (const BaseChoice& choice : kBaseChoices) {
    if (choice.id == id) return choice.base;
  }
  return std::nullopt;
}

std::u16string_view BaseCaption(BaseMode base) {
  for (const BaseChoice& choice : kBaseChoices) {
    if (choice.base == base) return choice.caption;
  }
  return kDecimalCaption;
}

std::u16string_view AngleCaption(AngleUnit unit) {
  return unit == AngleUnit::Degrees ? kDegreesCaption : kRadiansCaption;
}

Menu BuildMemoryMenu(std::u16string_view errorText) {
  Menu menu;
  for (const MemoryChoice& choice : kMemoryChoices) {
    if (choice.needsAnswer && !errorText.empty()) continue;
    menu.push_back({choice.id, std::u16string(choice.text)});
  }
  return menu;
}

bool Offers(const Menu& menu, int id) {
  return std::any_of(menu.begin(), menu.end(),
                     [id](const MenuItem& item) { return !item.IsSeparator() && item.id == id; });
}

}  // namespace kav
