// The main program of every test of the logic.
#include <gtest/gtest.h>

#include "settings/temporary_folder.h"
#include "support/own_environment.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const kav::TemporaryFolder home;
  kav::test::TakeOwnEnvironment(home.Path());
  return RUN_ALL_TESTS();
}
