// Counts what a test program takes by new, and refuses more for a while. It replaces the operators
// of the whole program, so one file of a program includes it.
#pragma once

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace kav::test {

inline constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max();

// In bytes.
inline std::size_t taken = 0;
inline std::size_t mostTaken = 0;
inline std::size_t allowed = kUnlimited;

inline void* TakeMemory(std::size_t size) {
  if (size > allowed || taken > allowed - size) throw std::bad_alloc();
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  taken += malloc_usable_size(block);
  mostTaken = std::max(mostTaken, taken);
  return block;
}

inline void GiveMemory(void* block) {
  taken -= block == nullptr ? 0 : malloc_usable_size(block);
  std::free(block);
}

/// Leaves only `more` bytes to take while it lives.
class Shortage {
 public:
  explicit Shortage(std::size_t more) { allowed = taken + more; }
  ~Shortage() { allowed = kUnlimited; }
  Shortage(const Shortage&) = delete;
  Shortage& operator=(const Shortage&) = delete;
};

}  // namespace kav::test

void* operator new(std::size_t size) {
  return kav::test::TakeMemory(size);
}
void* operator new[](std::size_t size) {
  return kav::test::TakeMemory(size);
}
void operator delete(void* block) noexcept {
  kav::test::GiveMemory(block);
}
void operator delete[](void* block) noexcept {
  kav::test::GiveMemory(block);
}
void operator delete(void* block, std::size_t) noexcept {
  kav::test::GiveMemory(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  kav::test::GiveMemory(block);
}
