#include "cli/edit_library.h"

#include <gtest/gtest.h>

namespace kav::edit_library_test {
namespace {

TEST(LoadEditLibrary, FindsTheLibraryOfTheSystem) {
  const auto library = LoadEditLibrary(kEditLibrary);
  ASSERT_TRUE(library);
  History* lines = library->historyInit();
  ASSERT_NE(lines, nullptr);
  HistEvent event;
  EXPECT_EQ(library->history(lines, &event, H_SETSIZE, 3), 0);
  EXPECT_EQ(library->history(lines, &event, H_GETSIZE), 0);
  library->historyEnd(lines);
}

TEST(LoadEditLibrary, WithoutOneThereIsNone) {
  EXPECT_FALSE(LoadEditLibrary("libno-such-library.so.0"));
}

TEST(LoadEditLibrary, ALibraryWithoutItsFunctionsIsNone) {
  EXPECT_FALSE(LoadEditLibrary("libm.so.6"));
}

}  // namespace
}  // namespace kav::edit_library_test
