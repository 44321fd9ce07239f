// Keypads of screens whose keys mostly do what keys of the scientific screen do.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "line/key_state.h"
#include "line/keypad.h"
#include "line/line_texts.h"

namespace kav {

/// All there is to say about one key of such a screen.
template <class K>
struct KeyRow : KeyPlaceOf<K> {
  KeyFace plain;    ///< while Shift is off
  KeyFace shifted;  ///< while it is on; the same for a key without a second function

  const KeyFace& Shown(ShiftState shift) const { return shift == ShiftState::On ? shifted : plain; }
};

/// Which faces of the scientific screen's key a key has.
enum class Faces { Both, Plain, Shifted };

/// What a row is made of.
template <class K>
struct KeySource {
  KeyPlaceOf<K> place;
  std::optional<Key> sameAs = {};    ///< the scientific screen's key that shows and writes the same
  std::u16string_view caption = {};  ///< in place of that key's, if not empty
  Faces faces = Faces::Both;
  std::u16string_view text = {};         ///< what a key without `sameAs` writes; empty for nothing
  std::u16string_view description = {};  ///< in place of that key's, if not empty
};

template <class K>
KeyFace FaceFrom(const KeySource<K>& source, Face face) {
  KeyFace shown = source.sameAs ? FaceOf(*source.sameAs, face) : KeyFace{};
  if (!source.caption.empty()) shown.caption = source.caption;
  if (!source.description.empty()) shown.description = source.description;
  if (!source.text.empty()) {
    shown.bare = KeyEdit{KeyEdit::Kind::Insert, source.text, {}, 0};
    shown.selected = shown.bare;
  }
  return shown;
}

/// The rows that `sources` say, in their order.
template <class K, std::size_t kCount>
std::array<KeyRow<K>, kCount> RowsFrom(const std::array<KeySource<K>, kCount>& sources) {
  std::array<KeyRow<K>, kCount> rows;
  std::transform(sources.begin(), sources.end(), rows.begin(), [](const KeySource<K>& source) {
    const Face plain = source.faces == Faces::Shifted ? Face::Shifted : Face::Plain;
    const Face shifted = source.faces == Faces::Plain ? Face::Plain : Face::Shifted;
    return KeyRow<K>{source.place, FaceFrom(source, plain), FaceFrom(source, shifted)};
  });
  return rows;
}

/// Whether `sources` hold every key once, from the first of the enumeration to `last`, in its
/// order.
template <class K, std::size_t kCount>
constexpr bool HoldEveryKey(const std::array<KeySource<K>, kCount>& sources, K last) {
  for (std::size_t i = 0; i < kCount; ++i) {
    if (static_cast<std::size_t>(sources[i].place.key) != i) return false;
  }
  return static_cast<std::size_t>(last) + 1 == kCount;
}

/// Every caption that a key may ever show.
template <class K>
std::vector<FaceText> CaptionsOf(const KeyRow<K>& row) {
  const FaceText plain{row.plain.caption, row.plain.description};
  if (row.key == K::Deg) {
    return {{kDegreesCaption, plain.description}, {kRadiansCaption, plain.description}};
  }
  if (row.plain.caption == row.shifted.caption) return {plain};
  return {plain, {row.shifted.caption, row.shifted.description}};
}

}  // namespace kav
