// How long tests that try values at random go on, and how much those that are about speed take.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace kav::test {

/// Whether what is tested is built as users run it: optimised, and without sanitizers.
bool IsFast();

/// `count` tries, fewer if each of them is slow.
inline int Tries(int count) {
  return IsFast() ? count : count / 10;
}

/// Of texts and lists of that size a tenth where each byte is slow. What a test proves of so many
/// holds of fewer, only how fast they are does not show, which is for a build that is fast.
inline std::size_t Sized(std::size_t size) {
  return IsFast() ? size : size / 10;
}

/// The bits of a double, which tell -0 from 0 and one NaN from another.
inline std::uint64_t BitsOf(double value) {
  return std::bit_cast<std::uint64_t>(value);
}

}  // namespace kav::test
