// What the user reads about every list of stored entries.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/number_text.h"

namespace kav {

/// The caption of a list of `count` entries that has room for `most`.
inline std::u16string StoredListCaption(int count, int most) {
  return u"List(" + Widen(PrintInteger(count)) + u"/" + Widen(PrintInteger(most)) + u")";
}

/// Why an entry called `name` is not saved beside another of that name.
inline std::u16string ExistsAlready(std::u16string_view name) {
  // Names may be of any length, boxes may not.
  constexpr std::size_t kMostShown = 200;
  return Shortened(name, kMostShown) + u" exists already.";
}

}  // namespace kav
