#include "cli/key_sequence.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "cli/cli_texts.h"
#include "common/ascii.h"
#include "common/number_text.h"

namespace kav {
namespace {

bool IsQuoted(std::string_view step) {
  return step.size() >= 2 && step.front() == '"' && step.back() == '"';
}

/// Removes a position from the front of `text`; nullopt if there is none. A number beyond all
/// positions stands for the end of the line.
std::optional<std::size_t> TakePosition(std::string_view& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), IsDigit<char>);
  const auto length = static_cast<std::size_t>(end - text.begin());
  if (length == 0) return std::nullopt;
  const auto position = ReadInteger<std::size_t>(text.substr(0, length));
  text.remove_prefix(length);
  return position.value_or(std::numeric_limits<std::size_t>::max());
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

/// The menu shows a long entry cut, and cut entries may look alike; the whole text tells them
/// apart.
const MenuItem* FindEntry(const Menu& menu, const History& history, std::u16string_view text) {
  const auto whole = std::find_if(menu.begin(), menu.end(), [&](const MenuItem& item) {
    return history.Entries()[static_cast<std::size_t>(item.id) - 1] == text;
  });
  return whole == menu.end() ? FindItem(menu, text) : &*whole;
}

}  // namespace

std::optional<std::string> KeySequence::Take(std::string_view step) {
  if (menu_) return TakeItem(step);
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
  const Key key = *std::exchange(menu_, std::nullopt);
  const Menu menu = screen_.MenuOf(key);
  const MenuItem* item =
      key == Key::PlayBack ? FindEntry(menu, screen_.PastLines(), wide) : FindItem(menu, wide);
  if (item == nullptr) return MenuDoesNotOffer(text);
  return CarryOut(screen_.Choose(key, item->id), text);
}

std::optional<std::string> KeySequence::Press(std::string_view caption) {
  const auto key = screen_.KeyShowing(Widen(caption));
  if (!key) return NoKeyShows(caption);
  if (!screen_.IsEnabled(*key)) return KeyIsDisabled(caption);
  return CarryOut(screen_.Press(*key), caption);
}

std::optional<std::string> KeySequence::CarryOut(const ScientificRequest& request,
                                                 std::string_view name) {
  if (std::holds_alternative<Nothing>(request)) return std::nullopt;
  if (const auto* editor = std::get_if<OpenMacroEditor>(&request)) return Narrow(editor->message);
  if (const auto* refusal = std::get_if<TellStop>(&request)) return Narrow(refusal->text);
  if (const auto* menu = std::get_if<ShowMenu<Key>>(&request)) {
    menu_ = menu->key;
    return std::nullopt;
  }
  return NeedsTheWindow(name);
}

void KeySequence::Type(std::string_view text) {
  std::u16string typed = Widen(text);
  // As at a keyboard, where it comes before the rest.
  if (!typed.empty() && screen_.TypeOperator(typed.front())) typed.erase(0, 1);
  if (typed.empty() && !text.empty()) return;
  ExpressionLine line = screen_.Line();
  line.InsertText(typed);
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
