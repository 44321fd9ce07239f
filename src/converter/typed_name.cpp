#include "converter/typed_name.h"

#include <algorithm>

#include "common/ascii.h"

namespace kav {
namespace {

bool BeginsAt(std::u16string_view text, std::size_t at, std::u16string_view typed) {
  return EqualsIgnoringCase(text.substr(at, typed.size()), typed);
}

/// Whether a word of `name` but the first begins with `typed`.
bool HasLaterWord(std::u16string_view name, std::u16string_view typed) {
  for (std::size_t at = 1; at < name.size(); ++at) {
    if (IsLetter(name[at]) && !IsLetter(name[at - 1]) && BeginsAt(name, at, typed)) return true;
  }
  return false;
}

bool HasFirstWord(std::u16string_view name, std::u16string_view typed) {
  return BeginsAt(name, 0, typed);
}

}  // namespace

std::u16string_view WithoutNumber(std::u16string_view caption) {
  constexpr std::u16string_view kBehindNumber = u". ";
  const std::size_t digits = caption.find_first_not_of(u"0123456789");
  if (digits == 0 ||
      caption.substr(std::min(digits, caption.size()), kBehindNumber.size()) != kBehindNumber) {
    return caption;
  }
  return caption.substr(digits + kBehindNumber.size());
}

std::optional<std::size_t> EntryNamed(const std::vector<std::u16string>& entries,
                                      std::u16string_view typed, std::size_t start) {
  if (typed.empty()) return std::nullopt;
  for (const auto matches : {HasFirstWord, HasLaterWord}) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const std::size_t place = (start + i) % entries.size();
      if (matches(WithoutNumber(entries[place]), typed)) return place;
    }
  }
  return std::nullopt;
}

}  // namespace kav
