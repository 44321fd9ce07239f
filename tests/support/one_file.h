// A test program holds the tests of a whole room; this lets it run those of one source file, which
// is what ctest calls a test.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <string_view>

namespace kav::test {

/// Chooses the tests of `tests/NAME.cpp` if the first argument left is a NAME, such as
/// "engine/tokenizer_test". Without one, or with a --gtest_filter (which the child process of a
/// death test has), all stays as it is. False, with a line on stderr, if that file has no tests: a
/// test that runs nothing must not pass. To be called after InitGoogleTest.
inline bool ChooseTestsOfOneFile(int argc, const char* const* argv) {
  if (argc < 2 || testing::GTEST_FLAG(filter) != "*") return true;
  const std::string ending = std::string("tests/") + argv[1] + ".cpp";
  const testing::UnitTest& all = *testing::UnitTest::GetInstance();
  std::string filter;
  for (int i = 0; i < all.total_test_suite_count(); ++i) {
    const testing::TestSuite& suite = *all.GetTestSuite(i);
    for (int k = 0; k < suite.total_test_count(); ++k) {
      const testing::TestInfo& test = *suite.GetTestInfo(k);
      if (!std::string_view(test.file()).ends_with(ending)) continue;
      filter += std::string(suite.name()) + "." + test.name() + ":";
    }
  }
  if (filter.empty()) {
    std::fprintf(stderr, "This program has no tests of %s\n", ending.c_str());
    return false;
  }
  testing::GTEST_FLAG(filter) = filter;
  return true;
}

}  // namespace kav::test
