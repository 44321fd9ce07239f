// Random numbers that are the same on every machine.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <random>

namespace kav::test {

/// Numbers that do not depend on the library's distributions.
class Random {
 public:
  explicit Random(std::uint64_t seed) : bits_(seed) {}

  std::uint64_t Bits() { return bits_(); }
  /// 0 to `count` - 1.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(bits_() % count); }
  template <class Table>
  const auto& Of(const Table& rows) {
    return rows[Below(rows.size())];
  }
  /// From 0 up to, but not including, 1.
  double Fraction() { return static_cast<double>(bits_() >> 11) * 0x1p-53; }
  /// Any double there is, infinities and not-a-numbers included.
  double AnyDouble() { return std::bit_cast<double>(Bits()); }

 private:
  std::mt19937_64 bits_;
};

}  // namespace kav::test
