#include "display/natural_decimals.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>

#include "common/exact_decimal.h"
#include "common/number_text.h"
#include "common/powers_of_ten.h"

namespace kav {
namespace {

// A double that needs more decimal digits than these carries representation noise in the last ones.
constexpr int kReliableDigits = 15;
// A value whose reliable digits have more decimals than these is searched for noise.
constexpr int kFewDecimals = 11;
constexpr int kScannedDecimals = 13;

std::uint64_t PowerOfTen(int exponent) {
  return kPowersOfTen<std::uint64_t, kReliableDigits>[static_cast<std::size_t>(exponent)];
}

/// An integer divided by 10^`decimals`.
struct ScaledNumber {
  std::uint64_t digits;
  int decimals;
};

ScaledNumber RoundToDecimals(double magnitude, int decimals) {
  // Every magnitude that gets here has such an integer: 1000 in thirteen decimals has 16 digits.
  return {ScaledToInteger(magnitude, decimals).value_or(0), decimals};
}

/// The reliable digits of `magnitude`, if they have few decimals: then there is no noise to look
/// for.
std::optional<ScaledNumber> FindFewDecimals(double magnitude) {
  const auto reliable = RoundToDigits(magnitude, kReliableDigits);
  // If these are not known, `magnitude` is 0 or less than 2^-26: its first eleven decimals have at
  // most four significant digits, no gap or nines can pass for noise, and the search finds the
  // same.
  if (!reliable) return std::nullopt;
  const int decimals = kReliableDigits - 1 - reliable->exponent;
  if (decimals <= kFewDecimals) return ScaledNumber{reliable->digits, decimals};
  // The first division, by a constant, is fast and mostly the last.
  if (reliable->digits % 10 != 0) return std::nullopt;
  const std::uint64_t surplus = PowerOfTen(decimals - kFewDecimals);
  if (reliable->digits % surplus != 0) return std::nullopt;
  return ScaledNumber{reliable->digits / surplus, kFewDecimals};
}

/// The decimal places of certain digits; bit 0 stands for the first decimal. The lower half of the
/// bits tells the digits that are not 0, the upper half the nines.
class DecimalPlaces {
 public:
  constexpr unsigned NonZeros() const { return bits_ & 0xFFFFU; }
  constexpr unsigned Nines() const { return bits_ >> kNines; }

  constexpr void Put(unsigned place, std::uint64_t digit) {
    if (digit != 0) bits_ |= 1U << place;
    if (digit == 9) bits_ |= 1U << (place + kNines);
  }
  /// `others`, as they are `places` farther behind the point.
  constexpr void Put(unsigned places, DecimalPlaces others) { bits_ |= others.bits_ << places; }

 private:
  static constexpr unsigned kNines = 16;

  std::uint32_t bits_ = 0;
};

/// The places of three digits, by the number that they are.
constexpr auto kTriples = [] {
  std::array<DecimalPlaces, 1000> triples{};
  for (unsigned i = 0; i < triples.size(); ++i) {
    triples[i].Put(0, i / 100);
    triples[i].Put(1, i / 10 % 10);
    triples[i].Put(2, i % 10);
  }
  return triples;
}();

/// The places among the scanned decimals, which are the last digits of `scanned`.
DecimalPlaces FindPlaces(std::uint64_t scanned) {
  static_assert(kScannedDecimals == 13);
  DecimalPlaces places;
  for (const unsigned place : {10U, 7U, 4U, 1U}) {
    places.Put(place, kTriples[scanned % 1000]);
    scanned /= 1000;
  }
  places.Put(0, scanned % 10);
  return places;
}

constexpr int kNoPlace = -1;

int LastPlace(unsigned places) {
  return static_cast<int>(std::bit_width(places)) - 1;
}

/// Neighbouring places.
struct Run {
  int start;
  int length;
};

/// The last run of nines after the last other digit. Neither a zero nor the last decimal of all
/// counts as another digit, but a zero ends a run.
Run LastNines(DecimalPlaces places) {
  constexpr unsigned kLastDecimal = 1U << (kScannedDecimals - 1);
  const unsigned others = places.NonZeros() & ~places.Nines() & ~kLastDecimal;
  const unsigned nines = places.Nines() >> std::bit_width(others) << std::bit_width(others);
  const int end = LastPlace(nines) + 1;
  const int length = end == 0 ? 0 : std::countl_one(nines << (32 - end));
  return {end - length, length};
}

/// `scanned` with a decimal less: what `magnitude` itself rounds to.
ScaledNumber DropLastDecimal(std::uint64_t scanned, double magnitude) {
  constexpr int kRest = kScannedDecimals - 1;
  // A last digit of 5 was rounded once: it does not tell on which side of the half the number was.
  if (scanned % 10 == 5) return RoundToDecimals(magnitude, kRest);
  return {(scanned + 5) / 10, kRest};
}

/// The place of the first of the nines that stand for a carry; nullopt if there are none.
std::optional<int> FindCarry(DecimalPlaces places, int previous) {
  const unsigned pairs = places.Nines() & places.Nines() >> 1U;
  if ((pairs & pairs >> 2U) == 0) return std::nullopt;  // Mostly: nowhere are there four.
  constexpr int kManyNines = 4;
  const Run nines = LastNines(places);
  const int firstZero = std::countr_one(places.NonZeros());
  if (nines.length < kManyNines || (firstZero < kScannedDecimals && previous <= firstZero)) {
    return std::nullopt;
  }
  return nines.start;
}

/// `magnitude`, which has the scanned decimals `scanned`, without the noise in these.
ScaledNumber RemoveNoise(double magnitude, std::uint64_t scanned) {
  constexpr int kGap = 3;  // A digit that follows the others at a greater distance is noise.
  const DecimalPlaces places = FindPlaces(scanned);
  const int last = LastPlace(places.NonZeros());
  const int previous = last == kNoPlace ? last : LastPlace(places.NonZeros() & ~(1U << last));
  if (previous != kNoPlace && last - previous > kGap) {
    return RoundToDecimals(magnitude, previous + 1);
  }
  if (const auto carry = FindCarry(places, previous)) return RoundToDecimals(magnitude, *carry);
  const bool isFull = previous != kNoPlace && last == kScannedDecimals - 1;
  return isFull ? DropLastDecimal(scanned, magnitude) : ScaledNumber{scanned, kScannedDecimals};
}

/// True only if the reliable digits have more than few decimals. Below 1000 they have at least
/// twelve, so if few decimals are enough, the scanned ones end within half a unit of the twelfth.
bool HasSurelyMany(std::uint64_t scanned) {
  const std::uint64_t tail = scanned % 100;
  return tail > 5 && tail < 95;
}

/// `magnitude` in its natural decimals, perhaps with zeros at the end.
ScaledNumber FindNatural(double magnitude) {
  const std::uint64_t scanned =
      magnitude < 1000 ? RoundToDecimals(magnitude, kScannedDecimals).digits : 0;
  if (!HasSurelyMany(scanned)) {
    if (const auto few = FindFewDecimals(magnitude)) return *few;
  }
  return RemoveNoise(magnitude, scanned);
}

/// `scaled`, which was made from `magnitude`, as a double.
double ValueOf(ScaledNumber scaled, double magnitude) {
  constexpr std::uint64_t kMostExact = std::uint64_t{1} << 53U;
  // A step of the last decimal is smaller there than the distance of neighbouring doubles, so
  // rounding moved the number by less than half of that distance.
  if (scaled.digits > kMostExact) return magnitude;
  return DecimalValue(scaled.digits, static_cast<std::size_t>(scaled.decimals));
}

}  // namespace

int NaturalDecimals(double value) {
  auto [digits, decimals] = FindNatural(std::fabs(value));
  for (; decimals > 0 && digits % 10 == 0; digits /= 10) --decimals;
  return decimals;
}

double RoundToNaturalDecimals(double value) {
  const double magnitude = std::fabs(value);
  return std::copysign(ValueOf(FindNatural(magnitude), magnitude), value);
}

}  // namespace kav
