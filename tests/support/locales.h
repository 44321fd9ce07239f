// Running a test in the locales whose point is a comma, or whose letters fold differently.
#pragma once

#include <array>
#include <clocale>
#include <iostream>
#include <string>

namespace kav::test {

inline constexpr std::array kLocales{"C", "C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8"};

/// The process's locale while it lives; then C again.
class LocaleInForce {
 public:
  explicit LocaleInForce(const char* name) : isThere_(std::setlocale(LC_ALL, name) != nullptr) {
    if (!isThere_) std::cout << "[  SKIPPED ] locale " << name << " is not installed\n";
  }
  ~LocaleInForce() { std::setlocale(LC_ALL, "C"); }
  LocaleInForce(const LocaleInForce&) = delete;
  LocaleInForce& operator=(const LocaleInForce&) = delete;

  bool IsThere() const { return isThere_; }

 private:
  bool isThere_;
};

}  // namespace kav::test
