#include "display/natural_decimals.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>

#include "common/exact_decimal.h"
#include "common/number_text.h"

namespace kav {
namespace {

// A double that needs more decimal digits than these carries representation noise in the last ones.
constexpr int kReliableDigits = 15;
// A value whose reliable digits have more decimals than these is searched for noise.
constexpr int kFewDecimals = 11;
constexpr int kScannedDecimals = 13;

constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, kReliableDigits + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

std::uint64_t PowerOfTen(int exponent) {
  return kPowersOfTen[static_cast<std::size_t>(exponent)];
}

/// An integer divided by 10^`decimals`.
struct ScaledNumber {
  std::uint64_t digits;
  int decimals;
};

ScaledNumber RoundToDecimals(double magnitude, int decimals) {
  // There is an integer for every magnitude that needs one: 1000 has 16 digits in thirteen
  // decimals.
  return {ScaledToInteger(magnitude, decimals).value_or(0), decimals};
}

/// The reliable digits of `magnitude`, where they have few decimals; these digits need no search.
std::optional<ScaledNumber> FindFewDecimals(double magnitude) {
  const auto reliable = RoundToDigits(magnitude, kReliableDigits);
  // Where this is not known `magnitude` is 0 or less than 2^-26: its first eleven decimals have
  // four digits at most, with no gap or nines to be taken for noise, and the search finds the same.
  if (!reliable) return std::nullopt;
  const int decimals = kReliableDigits - 1 - reliable->exponent;
  if (decimals <= kFewDecimals) return ScaledNumber{reliable->digits, decimals};
  // The first division, by a constant, is fast and mostly the last.
  if (reliable->digits % 10 != 0) return std::nullopt;
  const std::uint64_t surplus = PowerOfTen(decimals - kFewDecimals);
  if (reliable->digits % surplus != 0) return std::nullopt;
  return ScaledNumber{reliable->digits / surplus, kFewDecimals};
}

/// The places behind the point that have certain digits: bit 0 stands for the first decimal. Those
/// that are not 0 are the lower half, the nines the upper one.
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

/// The nines behind the last other digit, zeros and the last decimal of all not counted as one; the
/// last of them where zeros part them.
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
  // Having been rounded once, a last digit of 5 does not tell on which side of the half it was.
  if (scanned % 10 == 5) return RoundToDecimals(magnitude, kRest);
  return {(scanned + 5) / 10, kRest};
}

/// Where the nines begin that stand for a carry; nothing where none do.
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
  constexpr int kGap = 3;  // A digit farther than this behind the others is noise.
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

/// Whether the scanned decimals tell that the reliable digits have more than few. Below 1000 these
/// have at least twelve, so that few of them are within half a unit of the twelfth of `magnitude`.
bool HasSurelyMany(std::uint64_t scanned) {
  const std::uint64_t tail = scanned % 100;
  return tail > 5 && tail < 95;
}

/// `magnitude` in its natural decimals, possibly with zeros behind them.
ScaledNumber FindNatural(double magnitude) {
  const std::uint64_t scanned =
      magnitude < 1000 ? RoundToDecimals(magnitude, kScannedDecimals).digits : 0;
  if (!HasSurelyMany(scanned)) {
    if (const auto few = FindFewDecimals(magnitude)) return *few;
  }
  return RemoveNoise(magnitude, scanned);
}

/// `scaled` as a double, for the magnitude that it was made from.
double ValueOf(ScaledNumber scaled, double magnitude) {
  constexpr std::uint64_t kMostExact = std::uint64_t{1} << 53U;
  // Steps of the last decimal are finer there than those of doubles: it was rounded by less than
  // half the way to the next one.
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
