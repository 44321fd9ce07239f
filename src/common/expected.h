// A value or the reason why there is none: how every fallible function of the library answers.
#pragma once

#include <utility>
#include <variant>

namespace kav {

/// Holds a T (success) or an E (failure); T and E must differ. Ask with `if (answer)`, then read
/// `*answer` or `answer.error()`. To read the one that is not there is undefined behaviour, as with
/// a null pointer.
template <class T, class E>
class [[nodiscard]] Expected {
 public:
  Expected(T value) : held_(std::in_place_index<0>, std::move(value)) {}  // NOLINT: reads as a T
  Expected(E error) : held_(std::in_place_index<1>, std::move(error)) {}  // NOLINT: reads as an E

  explicit operator bool() const { return held_.index() == 0; }

  T& operator*() & { return *std::get_if<0>(&held_); }
  const T& operator*() const& { return *std::get_if<0>(&held_); }
  T&& operator*() && { return std::move(*std::get_if<0>(&held_)); }
  T* operator->() { return std::get_if<0>(&held_); }
  const T* operator->() const { return std::get_if<0>(&held_); }

  const E& error() const& { return *std::get_if<1>(&held_); }
  E&& error() && { return std::move(*std::get_if<1>(&held_)); }

 private:
  std::variant<T, E> held_;
};

}  // namespace kav
