// The user's own conversions: loading, adding, changing and removing them, with the checks that
// every way of doing so has in common.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "common/number_text.h"
#include "common/refusal.h"
#include "settings/keys.h"
#include "settings/settings_store.h"
#include "settings/stored_entries.h"

namespace kav {

/// A conversion from one unit to another, as it is stored: texts are UTF-8 and not checked.
struct UserConversion {
  std::string text;      ///< source, " -> ", target; serves as its name
  std::string rateText;  ///< as the user typed it, or with six decimals

  /// Target units in one source unit: the number that opens rateText, 0 if there is none.
  double Rate() const;

  bool operator==(const UserConversion&) const = default;
};

inline constexpr int kMostUserConversions = 60;

/// The stored conversions in their order, kMostUserConversions at most. The stored count tells how
/// many there are; empty ones at the end do not count.
std::vector<UserConversion> LoadUserConversions(const SettingsStore& settings);

/// The two names in the text of a conversion, split at its first "->". Without an arrow, all of the
/// text is the source.
struct UnitNames {
  std::u16string source;
  std::u16string target;
};
UnitNames SplitConversion(std::u16string_view text);

/// What the user typed. Without it, the rate is 0.
struct TypedConversion {
  std::u16string source;
  std::u16string target;
  std::u16string rate = u"0";
};

/// Where the focus goes after a refusal.
enum class ConversionField { None, Source, Target, Rate };
using ConversionRefusal = Refusal<ConversionField>;

/// The user's own conversions as a stored list, see settings/stored_entries.h.
struct UserConversionTraits {
  using Entry = UserConversion;
  using Typed = TypedConversion;
  using Field = ConversionField;

  static constexpr int kCapacity = kMostUserConversions;
  static constexpr IntegerKey kCount = kUserConversionCount;
  static std::u16string FullText();
  static std::vector<UserConversion> Load(const SettingsStore& settings) {
    return LoadUserConversions(settings);
  }
  static const std::string& NameOf(const UserConversion& conversion) { return conversion.text; }
  static std::u16string LabelOf(const UserConversion& conversion) { return Widen(conversion.text); }
  static Expected<UserConversion, ConversionRefusal> Check(
      const TypedConversion& typed, const std::vector<UserConversion>& others);
  static void Write(const UserConversion& conversion, int index, SettingsStore& settings);
  static void CloseGap(std::vector<UserConversion> stored, int removed, SettingsStore& settings);
};

/// The number that `text` is, not counting blanks at its ends: decimal digits with an optional
/// sign, point and exponent, as the engine reads a number. nullopt for any other text and beyond
/// the range of double.
std::optional<double> ReadRate(std::u16string_view text);

/// Stores `typed` in the place of `edited`, or behind the others if there is no such conversion
/// (any more). Blanks at the ends of each text are dropped. Returns the conversion's index, or the
/// first reason why it cannot be stored; then nothing is.
Expected<int, ConversionRefusal> SaveConversion(const TypedConversion& typed,
                                                const std::optional<StoredIdentity>& edited,
                                                SettingsStore& settings);

/// Removes `conversion`, moves those behind it up, and writes the rates of all others anew, with
/// six decimals. False if it was gone already.
bool RemoveConversion(const StoredIdentity& conversion, SettingsStore& settings);

/// Those of `conversions` whose rates are other numbers once they are written with six decimals.
/// The one at `removed` is left out; -1 leaves out none.
std::vector<UserConversion> LosingDigits(const std::vector<UserConversion>& conversions,
                                         int removed);

}  // namespace kav
