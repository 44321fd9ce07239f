// What tests see of the machine and of its user: as little as possible, and everywhere the same.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace kav::test {

/// Of the variables only those stay that lead to programs, libraries, locales and temporary files,
/// and those that test libraries and sanitizers have for themselves: no display, no desktop, no
/// language, no time zone, no terminal. The home folder is `home`. New files get the permissions
/// that most users' get. To be called before anything reads the environment.
inline void TakeOwnEnvironment(const std::string& home) {
  constexpr std::array<std::string_view, 12> kKept{
      "PATH=",         "LD_LIBRARY_PATH=", "LOCPATH=",      "TMPDIR=",
      "KAV_TEST_",     "GTEST_",           "ASAN_OPTIONS=", "UBSAN_OPTIONS=",
      "LSAN_OPTIONS=", "ASAN_SYMBOLIZER",  "GCOV_PREFIX",   "LLVM_PROFILE_"};
  std::vector<std::string> kept;
  for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
    const std::string_view text = *variable;
    const bool isKept = std::any_of(kKept.begin(), kKept.end(), [text](std::string_view beginning) {
      return text.starts_with(beginning);
    });
    if (isKept) kept.emplace_back(text);
  }
  clearenv();
  for (const std::string& text : kept) {
    const std::size_t name = text.find('=');
    setenv(text.substr(0, name).c_str(), text.substr(name + 1).c_str(), 1);
  }
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME"}) {
    setenv(name, home.c_str(), 1);
  }
  setenv("LC_ALL", "C.UTF-8", 1);
  setenv("TZ", "UTC", 1);
  umask(022);
}

}  // namespace kav::test
