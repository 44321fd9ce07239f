// The powers of ten.
#pragma once

#include <array>
#include <cstddef>

namespace kav {

/// 10^0 to 10^`kMost`, which a Number must hold exactly: a double does up to 10^22, a uint64_t up
/// to 10^19.
template <class Number, std::size_t kMost>
inline constexpr std::array<Number, kMost + 1> kPowersOfTen = [] {
  std::array<Number, kMost + 1> powers{1};
  for (std::size_t i = 1; i <= kMost; ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

}  // namespace kav
