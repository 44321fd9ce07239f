// How long tests that try values at random go on.
#pragma once

#include <bit>
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

/// The bits of a double, which tell -0 from 0 and one NaN from another.
inline std::uint64_t BitsOf(double value) {
  return std::bit_cast<std::uint64_t>(value);
}

}  // namespace kav::test
