#include "line/history.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "line/expression_line.h"
#include "line/shown_number.h"

namespace kav {
namespace {

// An answer is recorded as "=[D]value".
constexpr char16_t kAnswerMark = u'=';
constexpr std::size_t kTagPosition = 2;
constexpr std::size_t kValuePosition = 4;

struct BaseTag {
  BaseMode base;
  char16_t letter;
  int radix;
};

constexpr std::array kBaseTags{
    BaseTag{BaseMode::Decimal, u'D', 10},
    BaseTag{BaseMode::Hexadecimal, u'H', 16},
    BaseTag{BaseMode::Binary, u'B', 2},
    BaseTag{BaseMode::Octal, u'O', 8},
};

constexpr std::size_t kLongestLabel = 20;
constexpr std::size_t kCutLabel = 17;
constexpr std::u16string_view kCutMark = u"...";

const BaseTag& TagOf(BaseMode base) {
  return *std::find_if(kBaseTags.begin(), kBaseTags.end(),
                       [base](const BaseTag& tag) { return tag.base == base; });
}

/// The radix of a tag's letter; 10 for an unknown letter.
int RadixOf(char16_t letter) {
  const auto tag = std::find_if(kBaseTags.begin(), kBaseTags.end(),
                                [letter](const BaseTag& row) { return row.letter == letter; });
  return tag == kBaseTags.end() ? 10 : tag->radix;
}

/// What a character is worth as a digit; hexadecimal letters count only in radix 16. A character
/// that is none keeps its place and is worth 0.
int RecordedDigit(char16_t c, int radix) {
  const int value = DigitValue(LowerCase(c));
  return value < std::max(radix, 10) ? value : 0;
}

double ReadInRadix(std::u16string_view digits, int radix) {
  double value = 0;
  for (const char16_t c : digits) value = value * radix + RecordedDigit(c, radix);
  return value;
}

double ReadDecimal(std::u16string_view text) {
  std::string digits = Narrow(text);
  digits.erase(std::remove(digits.begin(), digits.end(), ','), digits.end());
  return ReadLeadingNumber(digits);
}

/// The number that an answer's entry records. An entry too short for a tag or a value, as a
/// settings file edited by hand may hold it, records 0.
double RecordedAnswer(std::u16string_view entry) {
  const int radix = entry.size() > kTagPosition ? RadixOf(entry[kTagPosition]) : 10;
  const std::u16string_view value = entry.substr(std::min(kValuePosition, entry.size()));
  return radix == 10 ? ReadDecimal(value) : ReadInRadix(value, radix);
}

}  // namespace

History History::Load(const SettingsStore& store, const HistoryKeys& keys) {
  History history;
  const int count = std::clamp(store.Get(keys.count), 0, static_cast<int>(kCapacity));
  for (int i = 0; i < count; ++i) {
    history.entries_.push_back(Widen(store.Get(keys.entry(keys.first + i))));
  }
  return history;
}

void History::Save(SettingsStore& store, const HistoryKeys& keys) const {
  std::vector<std::string> kept;
  kept.reserve(entries_.size());
  std::size_t room = kMostStored;
  for (std::size_t i = entries_.size(); i > 0; --i) {
    std::string text = Narrow(entries_[i - 1]);
    if (text.size() > room) continue;
    room -= text.size();
    kept.push_back(std::move(text));
  }
  const int count = static_cast<int>(kept.size());
  store.Set(keys.count, count);
  int number = keys.first + count;
  for (const std::string& text : kept) store.Set(keys.entry(--number), text);
  // What has no room there must not stay there from earlier either.
  for (int i = count; i < static_cast<int>(entries_.size()); ++i) {
    store.Set(keys.entry(keys.first + i), "");
  }
}

bool History::NewestIs(std::u16string_view text) const {
  return !entries_.empty() && entries_.back() == text;
}

void History::Add(std::u16string text) {
  if (NewestIs(text)) return;
  if (entries_.size() == kCapacity) entries_.erase(entries_.begin());
  entries_.push_back(std::move(text));
}

std::u16string AnswerEntry(std::u16string_view shown, BaseMode base) {
  std::u16string entry{kAnswerMark, u'[', TagOf(base).letter, u']'};
  return entry += shown;
}

std::u16string EntryInsertion(std::u16string_view entry, DisplayFormat format, BaseMode base) {
  if (entry.empty() || entry.front() != kAnswerMark) return std::u16string(entry);
  return InsertedNumber(RecordedAnswer(entry), format, base);
}

std::u16string EntryLabel(std::u16string_view entry) {
  if (entry.size() <= kLongestLabel) return std::u16string(entry);
  const std::size_t cut = CutsCharacter(entry, kCutLabel) ? kCutLabel - 1 : kCutLabel;
  return std::u16string(entry.substr(0, cut)) += kCutMark;
}

}  // namespace kav
