// How a number becomes the text of a result line, a cell or a label.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "display/natural_decimals.h"
#include "engine/calc_error.h"
#include "engine/calc_modes.h"
#include "settings/settings_store.h"

namespace kav {

/// The display types, by the numbers of the settings.
enum class DisplayType : std::int32_t {
  FloatingPoint = 0,
  FixedPoint = 1,
  ScientificNotation = 2,
  Thousands = 3,  ///< "Currency-Punctuated at thousands"
  EngineeringNotation = 4,
};

/// Whether a stored integer is the number of a display type.
constexpr bool IsDisplayType(std::int32_t stored) {
  return stored >= 0 && stored <= static_cast<std::int32_t>(DisplayType::EngineeringNotation);
}

/// Whether the type prints as many decimals as the user chose, rather than as many as the value
/// has.
constexpr bool UsesPrecision(DisplayType type) {
  return type != DisplayType::FloatingPoint && type != DisplayType::Thousands;
}

/// How numbers are shown. `precision`, 0 to kMaxPrecision, is the number of digits after the point
/// if the type prints a fixed number of them.
struct DisplayFormat {
  static constexpr int kMaxPrecision = 99;

  DisplayType type = DisplayType::Thousands;
  int precision = 7;
};

/// The format that stored integers stand for. An unknown type becomes the default one, a precision
/// out of range the nearest one in range.
DisplayFormat DisplayFormatFromSettings(std::int32_t type, std::int32_t precision);

/// The format of the scientific screen's results as the user has set it.
DisplayFormat LoadDisplayFormat(const SettingsStore& store);

/// `value` as shown in `base`: in an integer base truncated to 32 bits and written in that radix,
/// upper case; in decimal by `format`. Fails with "Out of range(overflow or underflow)" for
/// infinities and not-a-number, in every base.
CalcResult<std::string> FormatNumber(double value, DisplayFormat format,
                                     BaseMode base = BaseMode::Decimal);

/// `value` as it is handed to another dialog or inserted into a line: always in display type
/// "Floating Point", since the separators of another type would not read back; in exponent form
/// with the precision of `format`. Fails as FormatNumber does.
CalcResult<std::string> FormatForInsertion(double value, DisplayFormat format,
                                           BaseMode base = BaseMode::Decimal);

/// The number that the text of `value`, which is finite, reads back as in display type "Floating
/// Point" with `precision`. Makes no text from 1e-12 to 1e12.
double RoundAsShown(double value, int precision);

/// The decimal number `text` with a "," between each three digits of its integer part.
std::string GroupThousands(std::string_view text);

}  // namespace kav
