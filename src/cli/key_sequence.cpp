#include "cli/key_sequence.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "cli/cli_texts.h"
#include "common/number_text.h"

namespace kav {
namespace {

bool IsQuoted(std::string_view step) {
  return step.size() >= 2 && step.front() == '"' && step.back() == '"';
}

/// Removes a position from the front of `text`; nullopt if there is none. A number beyond all
/// positions stands for the end of the line.
std::optional<std::size_t> TakePosition(std::string_view& text) {
  std::size_t position = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), position);
  if (read.ec == std::errc::invalid_argument) return std::nullopt;
  if (read.ec != std::errc{}) position = std::numeric_limits<std::size_t>::max();
  text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
  return position;
}

/// The selection that "[A:B]" or "[A]" stands for; nullopt if `step` is neither.
std::optional<Selection> ReadSelection(std::string_view step) {
  if (step.size() < 2 || step.front() != '[' || step.back() != ']') return std::nullopt;
  step = step.substr(1, step.size() - 2);
  const auto start = TakePosition(step);
  if (!start) return std::nullopt;
  if (step.empty()) return Selection{*start, *start};
  if (step.front() != ':') return std::nullopt;
  step.remove_prefix(1);
  const auto end = TakePosition(step);
  if (!end || !step.empty()) return std::nullopt;
  return Selection{*start, *end};
}

const MenuItem* FindItem(const Menu& menu, std::u16string_view text) {
  const auto found = std::find_if(menu.begin(), menu.end(), [&](const MenuItem& item) {
    return !item.IsSeparator() && item.text == text;
  });
  return found == menu.end() ? nullptr : &*found;
}

}  // namespace

std::optional<std::string> KeySequence::Take(std::string_view step) {
  if (menu_ != OpenMenu::None) return TakeItem(step);
  if (IsQuoted(step)) {
    Type(step.substr(1, step.size() - 2));
    return std::nullopt;
  }
  if (const auto selection = ReadSelection(step)) {
    screen_.SetLine(screen_.Line().Text(), *selection);
    return std::nullopt;
  }
  return Press(step);
}

std::optional<std::string> KeySequence::TakeItem(std::string_view text) {
  const std::u16string wide = Widen(text);
  const OpenMenu menu = std::exchange(menu_, OpenMenu::None);
  if (menu == OpenMenu::History) return ChooseHistory(wide);
  const Menu items = menu == OpenMenu::Base ? screen_.BaseMenu() : screen_.MemoryMenu();
  const MenuItem* item = FindItem(items, wide);
  if (item == nullptr) return MenuDoesNotOffer(text);
  if (menu == OpenMenu::Memory) return CarryOut(screen_.ChooseMemory(item->id), text);
  screen_.ChooseBase(item->id);
  return std::nullopt;
}

/// The menu cuts long entries, and cut entries may look alike. So an entry with this whole text
/// comes first.
std::optional<std::string> KeySequence::ChooseHistory(std::u16string_view text) {
  const Menu menu = screen_.HistoryMenu();
  const auto& entries = screen_.PastLines().Entries();
  const auto whole = std::find_if(menu.begin(), menu.end(), [&](const MenuItem& item) {
    return entries[static_cast<std::size_t>(item.id) - 1] == text;
  });
  const MenuItem* item = whole == menu.end() ? FindItem(menu, text) : &*whole;
  if (item == nullptr) return MenuDoesNotOffer(Narrow(text));
  screen_.ChooseHistory(item->id);
  return std::nullopt;
}

std::optional<std::string> KeySequence::Press(std::string_view caption) {
  const auto key = screen_.KeyShowing(Widen(caption));
  if (!key) return NoKeyShows(caption);
  if (!screen_.IsEnabled(*key)) return KeyIsDisabled(caption);
  return CarryOut(screen_.Press(*key), caption);
}

std::optional<std::string> KeySequence::CarryOut(const KeyRequest& request, std::string_view name) {
  if (std::holds_alternative<Nothing>(request)) return std::nullopt;
  if (const auto* editor = std::get_if<OpenMacroEditor>(&request)) return Narrow(editor->message);
  if (std::holds_alternative<ShowHistoryMenu>(request)) menu_ = OpenMenu::History;
  if (std::holds_alternative<ShowBaseMenu>(request)) menu_ = OpenMenu::Base;
  if (std::holds_alternative<ShowMemoryMenu>(request)) menu_ = OpenMenu::Memory;
  if (menu_ != OpenMenu::None) return std::nullopt;
  return NeedsTheWindow(name);
}

void KeySequence::Type(std::string_view text) {
  ExpressionLine line = screen_.Line();
  line.InsertText(Widen(text));
  screen_.SetLine(line.Text(), line.Selected());
}

std::string MarkedLine(const ExpressionLine& line) {
  const std::u16string_view text = line.Text();
  const auto [start, end] = std::minmax({line.Selected().start, line.Selected().end});
  if (start == end) return Narrow(text.substr(0, start)) + "|" + Narrow(text.substr(start));
  return Narrow(text.substr(0, start)) + "[" + Narrow(text.substr(start, end - start)) + "]" +
         Narrow(text.substr(end));
}

}  // namespace kav
