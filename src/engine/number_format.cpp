#include "engine/number_format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "common/exact_decimal.h"
#include "common/number_text.h"
#include "settings/keys.h"

namespace kav {
namespace {

// Values keep their plain notation up to twelve places on either side of the point.
constexpr double kMostPlaces = 12.0;
// A double that needs more decimal digits than these carries representation noise in the last ones.
constexpr std::size_t kReliableDigits = 15;
// From this many decimals on a value is searched for noise even where its digits are reliable.
constexpr int kManyDecimals = 12;

bool NeedsExponent(double value) {
  const double magnitude = std::fabs(value);
  // Well inside the limits there is no need to ask for the logarithm.
  if ((magnitude > 1e-11 && magnitude < 1e11) || magnitude == 0) return false;
  const double places = std::log10(magnitude);
  return magnitude >= 1 ? places > kMostPlaces : places < -kMostPlaces;
}

std::string_view FractionOf(std::string_view plain) {
  const auto point = plain.find('.');
  return point == plain.npos ? std::string_view() : plain.substr(point + 1);
}

/// The decimals that the reliable digits of a value have, without zeros at the end.
int ReliableDecimals(double value) {
  if (const auto rounded = RoundToDigits(std::fabs(value), static_cast<int>(kReliableDigits))) {
    int decimals = static_cast<int>(kReliableDigits) - 1 - rounded->exponent;
    for (auto digits = rounded->digits; decimals > 0 && digits % 10 == 0; digits /= 10) --decimals;
    return std::max(0, decimals);
  }
  if (value == 0) return 0;
  const std::string text = PrintScientific(value, static_cast<int>(kReliableDigits) - 1);
  const auto mark = text.find('e');
  const std::string_view mantissa = std::string_view(text).substr(0, mark);
  const auto last = static_cast<int>(FractionOf(mantissa).find_last_not_of('0')) + 1;
  const auto exponent =
      static_cast<int>(ReadLeadingNumber(std::string_view(text).substr(mark + 1)));
  return std::max(0, last - exponent);
}

/// The `decimals` (1 to 13) digits behind the point of `value`, rounded there.
std::string DecimalsOf(double value, int decimals) {
  const auto scaled = ScaledToInteger(std::fabs(value), decimals);
  if (!scaled) return std::string(FractionOf(PrintFixed(value, decimals)));
  std::array<char, 20> buffer;  // As many as the digits of any 64-bit integer.
  char* const end = buffer.data() + buffer.size();
  WriteDecimal(*scaled, decimals, end);
  return {end - decimals, end};
}

/// What the search for representation noise notes about the 13 decimals of a value; indices from 0,
/// kNone where there is no such digit.
struct DecimalsScan {
  static constexpr int kNone = -1;

  int firstZero = kNone;
  int lastDigit = kNone;      ///< the last digit that is not 0
  int previousDigit = kNone;  ///< the one before it
  int ninesStart = 0;
  int ninesLength = 0;
};

constexpr int kScannedDecimals = 13;

DecimalsScan ScanDecimals(std::string_view fraction) {
  DecimalsScan scan;
  for (int i = 0; i < kScannedDecimals; ++i) {
    const char digit = fraction[static_cast<std::size_t>(i)];
    if (digit == '0') {
      if (scan.firstZero == DecimalsScan::kNone) scan.firstZero = i;
      continue;
    }
    scan.previousDigit = std::exchange(scan.lastDigit, i);
    if (digit != '9') {
      if (i != kScannedDecimals - 1) scan.ninesLength = 0;
      continue;
    }
    if (scan.ninesLength == 0 || scan.ninesStart + scan.ninesLength != i) {
      scan.ninesStart = i;
      scan.ninesLength = 0;
    }
    ++scan.ninesLength;
  }
  return scan;
}

/// How many of the scanned decimals of `value` are more than noise.
int DecimalsWithoutNoise(double value, DecimalsScan scan) {
  constexpr int kGap = 3;        // A digit farther than this behind the others is noise,
  constexpr int kManyNines = 4;  // and so are this many nines, which stand for a carry.
  const bool hasPrevious = scan.previousDigit != DecimalsScan::kNone;
  if (hasPrevious && scan.lastDigit == kScannedDecimals - 1 &&
      kScannedDecimals - 1 - scan.previousDigit <= kGap) {
    const std::string rounded = DecimalsOf(value, kScannedDecimals - 1);
    scan.lastDigit = static_cast<int>(rounded.find_last_not_of('0'));
  }
  if (hasPrevious && scan.lastDigit - scan.previousDigit > kGap) return scan.previousDigit + 1;
  const bool ninesFollowZero =
      scan.firstZero != DecimalsScan::kNone && scan.previousDigit <= scan.firstZero;
  if (scan.ninesLength < kManyNines || ninesFollowZero) return scan.lastDigit + 1;
  return scan.ninesStart;
}

/// The exponent of ten that engineering notation starts from. From 1 on it is taken from the
/// logarithm, below 1 from the text of 15 decimals; just under a power of ten the two disagree, and
/// the mantissa then shows it.
int EngineeringExponent(double value, std::string_view exponentText) {
  const double magnitude = std::fabs(value);
  return static_cast<int>(magnitude >= 1 ? std::log10(magnitude) : ReadLeadingNumber(exponentText));
}

std::string PrintEngineering(double value, int precision) {
  if (value == 0) return PrintScientific(0, precision);
  constexpr std::array kPowersOfTen{1.0, 10.0, 100.0};
  const std::string text = PrintScientific(value, static_cast<int>(kReliableDigits));
  const auto mark = text.find('e');
  const int exponent = EngineeringExponent(value, std::string_view(text).substr(mark + 1));
  const int remainder = exponent % 3;
  const int shift = remainder < 0 ? remainder + 3 : remainder;
  const double mantissa = ReadLeadingNumber(std::string_view(text).substr(0, mark)) *
                          kPowersOfTen[static_cast<std::size_t>(shift)];
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
  for (char& c : digits) c = c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c;
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

int NaturalDecimals(double value) {
  const int reliable = ReliableDecimals(value);
  if (reliable < kManyDecimals) return reliable;
  return DecimalsWithoutNoise(value, ScanDecimals(DecimalsOf(value, kScannedDecimals)));
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
