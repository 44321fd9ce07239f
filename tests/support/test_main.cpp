// The main program of the tests of a room of the logic.
#include <gtest/gtest.h>

#include "support/one_file.h"
#include "support/own_environment.h"
#include "support/temporary_folder.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!kav::test::ChooseTestsOfOneFile(argc, argv)) return 1;
  const kav::TemporaryFolder home;
  kav::test::TakeOwnEnvironment(home.Path());
  return RUN_ALL_TESTS();
}
