#include "display/number_format.h"

#include <algorithm>
#include <cmath>

#include "common/ascii.h"
#include "common/number_text.h"
#include "common/powers_of_ten.h"
#include "settings/keys.h"

namespace kav {
namespace {

// Values keep their plain notation up to twelve places on either side of the point.
constexpr double kMostPlaces = 12.0;
// The decimals that the mantissa of engineering notation starts from.
constexpr int kEngineeringDecimals = 15;

bool NeedsExponent(double value) {
  const double magnitude = std::fabs(value);
  // Well inside the limits the logarithm is not needed.
  if ((magnitude > 1e-11 && magnitude < 1e11) || magnitude == 0) return false;
  const double places = std::log10(magnitude);
  return magnitude >= 1 ? places > kMostPlaces : places < -kMostPlaces;
}

/// The exponent of ten that engineering notation starts from: for magnitudes from 1 on that of the
/// logarithm, below 1 that of the text of 15 decimals. Just under a power of ten the logarithm
/// disagrees with the text that the mantissa is taken from, and the result shows it.
int EngineeringExponent(double value, std::string_view exponentText) {
  const double magnitude = std::fabs(value);
  return static_cast<int>(magnitude >= 1 ? std::log10(magnitude) : ReadLeadingNumber(exponentText));
}

std::string PrintEngineering(double value, int precision) {
  if (value == 0) return PrintScientific(0, precision);
  const std::string text = PrintScientific(value, kEngineeringDecimals);
  const auto mark = text.find('e');
  const int exponent = EngineeringExponent(value, std::string_view(text).substr(mark + 1));
  const int remainder = exponent % 3;
  const int shift = remainder < 0 ? remainder + 3 : remainder;
  const double mantissa = ReadLeadingNumber(std::string_view(text).substr(0, mark)) *
                          kPowersOfTen<double, kExactDigits>[static_cast<std::size_t>(shift)];
  const std::string digits = PrintInteger(std::abs(exponent - shift));
  return PrintFixed(mantissa, precision) + (exponent < shift ? "E-" : "E+") +
         std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits;
}

std::string PrintDecimal(double value, DisplayFormat format) {
  switch (format.type) {
    case DisplayType::ScientificNotation:
      return PrintScientific(value, format.precision);
    case DisplayType::EngineeringNotation:
      return PrintEngineering(value, format.precision);
    case DisplayType::FloatingPoint:
    case DisplayType::FixedPoint:
    case DisplayType::Thousands:
      break;
  }
  if (NeedsExponent(value)) return PrintScientific(value, format.precision);
  if (format.type == DisplayType::FixedPoint) return PrintFixed(value, format.precision);
  std::string text = PrintFixed(value, NaturalDecimals(value));
  return format.type == DisplayType::Thousands ? GroupThousands(text) : text;
}

std::string PrintInBase(double value, BaseMode base) {
  const int radix = base == BaseMode::Hexadecimal ? 16 : base == BaseMode::Binary ? 2 : 8;
  std::string digits = PrintInRadix(static_cast<std::uint32_t>(ToInt32(value)), radix);
  for (char& c : digits) c = UpperCase(c);
  return digits;
}

}  // namespace

DisplayFormat DisplayFormatFromSettings(std::int32_t type, std::int32_t precision) {
  DisplayFormat format;
  if (IsDisplayType(type)) format.type = static_cast<DisplayType>(type);
  format.precision = std::clamp<std::int32_t>(precision, 0, DisplayFormat::kMaxPrecision);
  return format;
}

DisplayFormat LoadDisplayFormat(const SettingsStore& store) {
  return DisplayFormatFromSettings(store.Get(kDisplayType), store.Get(kPrecision));
}

CalcResult<std::string> FormatNumber(double value, DisplayFormat format, BaseMode base) {
  if (!std::isfinite(value)) return MakeError(CalcErrorCode::OutOfRange);
  if (base != BaseMode::Decimal) return PrintInBase(value, base);
  const double shown = value == 0 ? 0.0 : value;  // There is no negative zero on a calculator.
  return PrintDecimal(shown, format);
}

CalcResult<std::string> FormatForInsertion(double value, DisplayFormat format, BaseMode base) {
  return FormatNumber(value, {DisplayType::FloatingPoint, format.precision}, base);
}

double RoundAsShown(double value, int precision) {
  if (value == 0) return 0.0;
  if (NeedsExponent(value)) return ReadLeadingNumber(PrintScientific(value, precision));
  return RoundToNaturalDecimals(value);
}

std::string GroupThousands(std::string_view text) {
  constexpr std::size_t kGroup = 3;
  std::string grouped;
  if (!text.empty() && text.front() == '-') {
    grouped += '-';
    text.remove_prefix(1);
  }
  const std::size_t wholeLength = std::min(text.find('.'), text.size());
  for (std::size_t i = 0; i < wholeLength; ++i) {
    if (i != 0 && (wholeLength - i) % kGroup == 0) grouped += ',';
    grouped += text[i];
  }
  return grouped.append(text.substr(wholeLength));
}

}  // namespace kav
