// The conversions that the user defines: their place in the settings, and the checks that every way
// of changing them has in common.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "common/refusal.h"
#include "settings/settings_store.h"

namespace kav {

/// A conversion from one unit to another, as it is stored: texts are UTF-8 and not checked.
struct UserConversion {
  std::string text;      ///< source, " -> ", target: what it is called by
  std::string rateText;  ///< as it is stored, which is as the user typed it

  /// Target units in one source unit: the number that opens rateText, 0 where there is none.
  double Rate() const;

  bool operator==(const UserConversion&) const = default;
};

inline constexpr int kMostUserConversions = 60;

/// The stored conversions in their order, kMostUserConversions at most. The stored count tells how
/// many there are; places at its end that are empty are not counted.
std::vector<UserConversion> LoadUserConversions(const SettingsStore& settings);

/// The two names in the text of a conversion, split at its first "->". Without one, all of it is
/// the source.
struct UnitNames {
  std::u16string source;
  std::u16string target;
};
UnitNames SplitConversion(std::u16string_view text);

/// What the user typed.
struct TypedConversion {
  std::u16string source;
  std::u16string target;
  std::u16string rate;
};

/// Where the focus goes after a refusal.
enum class ConversionField { None, Source, Target, Rate };

/// A stored conversion as it was seen last: another program may have moved or removed it since.
struct ConversionIdentity {
  int index;
  std::string text;
};

/// Where `conversion` stands among `stored` by now, nullopt where it is gone.
std::optional<int> PlaceOf(const ConversionIdentity& conversion,
                           const std::vector<UserConversion>& stored);

/// The number that `text` is, blanks around it aside: decimal digits with an optional sign, point
/// and exponent, as the engine reads a number. nullopt for any other text and beyond the range of
/// double.
std::optional<double> ReadRate(std::u16string_view text);

/// Stores `typed` in the place of `edited`, or behind the others where there is none or it is gone
/// by now; blanks around each text are taken off. Answers its index, or the first reason why it
/// cannot be stored, and then nothing was.
Expected<int, Refusal<ConversionField>> SaveConversion(
    const TypedConversion& typed, const std::optional<ConversionIdentity>& edited,
    SettingsStore& settings);

/// Removes `conversion`, moves those behind it up, and rewrites the rates of all others with six
/// decimals. False where it is gone already.
bool RemoveConversion(const ConversionIdentity& conversion, SettingsStore& settings);

/// Those of `conversions` but `removed` whose rates are other numbers once they are written with
/// six decimals.
std::vector<UserConversion> LosingDigits(const std::vector<UserConversion>& conversions,
                                         int removed);

}  // namespace kav
