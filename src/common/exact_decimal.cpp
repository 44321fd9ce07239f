#include "common/exact_decimal.h"

#include <array>
#include <bit>
#include <cstring>

#include "common/powers_of_ten.h"

namespace kav {
namespace {

__extension__ using Wide = unsigned __int128;

constexpr int kMantissaBits = 52;
constexpr int kExponentBias = 1023;
constexpr int kMostPower = 22;  // 10^22 has 74 bits: with the 53 of a mantissa they fit in a Wide.

/// 10^`power`, 0 to kMostPower.
Wide PowerOfTen(int power) {
  return kPowersOfTen<Wide, kMostPower>[static_cast<std::size_t>(power)];
}

/// A positive double as `mantissa` / 2^`shift`.
struct BinaryFraction {
  std::uint64_t mantissa;
  int shift;
};

std::optional<BinaryFraction> Decompose(double magnitude) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const int shift = kExponentBias + kMantissaBits - static_cast<int>(bits >> kMantissaBits);
  // A sign bit, infinities and not-a-number make the shift negative; a subnormal number makes it
  // too large.
  if (shift < 0 || shift > 127) return std::nullopt;
  constexpr std::uint64_t kHidden = std::uint64_t{1} << kMantissaBits;
  return BinaryFraction{(bits & (kHidden - 1)) | kHidden, shift};
}

std::optional<std::uint64_t> Rounded(Wide product, int shift) {
  // The product has 127 bits at most: the sum does not overflow.
  const Wide sum = product + (shift == 0 ? 0 : Wide{1} << (shift - 1));
  Wide rounded = sum >> shift;
  const bool isTie = shift != 0 && rounded << shift == sum;
  if (isTie) rounded &= ~Wide{1};
  if ((rounded >> 64) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(rounded);
}

constexpr std::array<char, 200> MakePairs() {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}
constexpr auto kPairs = MakePairs();

}  // namespace

std::optional<std::uint64_t> ScaledToInteger(double magnitude, int power) {
  const auto fraction = Decompose(magnitude);
  if (!fraction || power < 0 || power > kMostPower) return std::nullopt;
  return Rounded(fraction->mantissa * PowerOfTen(power), fraction->shift);
}

std::optional<SignificantDigits> RoundToDigits(double magnitude, int count) {
  constexpr int kMostDigits = 17;
  const auto fraction = Decompose(magnitude);
  if (!fraction || count > kMostDigits) return std::nullopt;
  // The decimal exponent of the power of two below the number, by log10(2) as 1233 / 4096: right,
  // or one too small.
  int exponent = ((kMantissaBits - fraction->shift) * 1233) >> 12;
  const auto beyond = static_cast<std::uint64_t>(PowerOfTen(count));
  for (;; ++exponent) {
    const int power = count - 1 - exponent;
    if (power < 0 || power > kMostPower) return std::nullopt;
    const auto digits = Rounded(fraction->mantissa * PowerOfTen(power), fraction->shift);
    if (!digits) return std::nullopt;
    if (*digits < beyond) return SignificantDigits{*digits, exponent};
  }
}

char* WriteDecimal(std::uint64_t value, int leastDigits, char* end) {
  char* const filled = end - leastDigits;
  while (value >= 100) {
    end -= 2;
    std::memcpy(end, &kPairs[2 * (value % 100)], 2);
    value /= 100;
  }
  if (value >= 10) {
    end -= 2;
    std::memcpy(end, &kPairs[2 * value], 2);
  } else if (value != 0) {
    *--end = static_cast<char>('0' + value);
  }
  while (end > filled) *--end = '0';
  return end;
}

}  // namespace kav
