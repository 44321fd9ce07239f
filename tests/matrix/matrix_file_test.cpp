#include "matrix/matrix_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <string>
#include <vector>

#include "support/matrix_table.h"
#include "support/temporary_folder.h"

namespace kav::matrix_file_test {
namespace {

using test::MatrixOf;
using test::Spelled;

constexpr uid_t kNobody = 65534;

TEST(LoadMatrixFile, CommasAreTakenOutOfTheCells) {
  const TemporaryFolder folder;
  PutFile(folder.File("a.txt"), "[2*2]\r\n1,234,567.5\t-1,000\r\n,,\t 3,x\r\n");
  const auto matrix = LoadMatrixFile(folder.File("a.txt"));
  ASSERT_TRUE(matrix);
  EXPECT_EQ(matrix->At(0, 0), u"1234567.5");
  EXPECT_EQ(matrix->At(0, 1), u"-1000");
  EXPECT_EQ(matrix->At(1, 0), u"");
  EXPECT_EQ(matrix->At(1, 1), u" 3x");
}

TEST(LoadMatrixFile, WhatEditorsAddIsLeftOut) {
  const TemporaryFolder folder;
  PutFile(folder.File("a.txt"), "\xEF\xBB\xBF[2*1]\r\n1,000\r\n2\r\n\r\n");
  const auto matrix = LoadMatrixFile(folder.File("a.txt"));
  ASSERT_TRUE(matrix);
  EXPECT_EQ(Spelled(*matrix), "1000; 2");
}

TEST(LoadMatrixFile, WhatCannotBeReadIsNoMatrix) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  mkfifo(folder.File("pipe").c_str(), 0600);
  PutFile(folder.File("text"), "hello\r\n");
  PutFile(folder.File("eleven"), "[11*1]\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n");
  PutFile(folder.File("short"), "[2*2]\r\n1\t2\r\n");
  PutFile(folder.File("surplus"), "[1*1]\r\n1\t2\r\n");
  for (const char* name : {"missing", "folder", "pipe", "text", "eleven", "short", "surplus"}) {
    EXPECT_FALSE(LoadMatrixFile(folder.File(name))) << name;
  }
  EXPECT_FALSE(LoadMatrixFile(""));
  EXPECT_FALSE(LoadMatrixFile("/dev/zero"));
}

TEST(LoadMatrixFile, AFileOfAMegabyteIsReadAndALargerOneIsNot) {
  const TemporaryFolder folder;
  const std::string start = "[1*1]\r\n";
  const std::string longest = start + std::string(1024 * 1024 - start.size(), '7');
  PutFile(folder.File("a"), longest);
  PutFile(folder.File("b"), longest + '7');
  EXPECT_TRUE(LoadMatrixFile(folder.File("a")));
  EXPECT_FALSE(LoadMatrixFile(folder.File("b")));
}

TEST(LoadMatrixFile, AFileOfSomebodyElseIsNoMatrix) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "[1*1]\r\n1\r\n");
  chmod(folder.File("a").c_str(), 0);
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              return LoadMatrixFile(folder.File("a")) ? 1 : 0;
            }),
            0);
}

TEST(SaveMatrixFile, WhatIsSavedIsLoadedAgain) {
  const TemporaryFolder folder;
  const std::string path = folder.File("ü.txt");
  PutFile(path, "old");
  EXPECT_EQ(SaveMatrixFile(path, MatrixOf("1 2 3; 4 5 6")), std::nullopt);
  EXPECT_EQ(FileContent(path), "[2*3]\r\n1\t2\t3\r\n4\t5\t6\r\n");
  EXPECT_EQ(Spelled(*LoadMatrixFile(path)), "1 2 3; 4 5 6");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"ü.txt"});
}

TEST(SaveMatrixFile, AFailureIsToldWithTheFileTheReasonAndTheRemedy) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  EXPECT_EQ(SaveMatrixFile(folder.File("folder"), MatrixOf("1")),
            u"The matrix cannot be saved in " + Widen(folder.File("folder")) +
                u": a folder or a device has this name; move it away or choose another file.");
  EXPECT_EQ(SaveMatrixFile(folder.File("missing/a"), MatrixOf("1")),
            u"The matrix cannot be saved in " + Widen(folder.File("missing/a")) +
                u": a folder on the way there is missing and cannot be made; check the path.");
}

TEST(SaveMatrixFile, WithoutSpaceTheOldFileSurvives) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  EXPECT_EQ(InAnotherProcess([&] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{8, 8};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
              const auto told = SaveMatrixFile(folder.File("a"), MatrixOf("1 2; 3 4"));
              return told && told->find(u"no file may grow so large") != told->npos ? 0 : 1;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "old");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"a"});
}

}  // namespace
}  // namespace kav::matrix_file_test
