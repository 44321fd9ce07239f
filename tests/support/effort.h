// How long tests that try values at random go on, and how much those that are about speed take.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace kav::test {

// Whether what is tested is built as users run it: optimised, and without sanitizers.
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
inline constexpr bool kIsFast = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool kIsFast = false;
#else
inline constexpr bool kIsFast = true;
#endif
#else
inline constexpr bool kIsFast = true;
#endif

/// `count` tries, fewer if each of them is slow.
constexpr int Tries(int count) {
  return kIsFast ? count : count / 10;
}

/// Of texts and lists of that size a tenth where each byte is slow. What a test proves of so many
/// holds of fewer, only how fast they are does not show, which is for a build that is fast.
constexpr std::size_t Sized(std::size_t size) {
  return kIsFast ? size : size / 10;
}

/// The bits of a double, which tell -0 from 0 and one NaN from another.
inline std::uint64_t BitsOf(double value) {
  return std::bit_cast<std::uint64_t>(value);
}

}  // namespace kav::test
