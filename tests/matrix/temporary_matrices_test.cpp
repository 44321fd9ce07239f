#include "matrix/temporary_matrices.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/time.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/matrix_table.h"
#include "support/temporary_folder.h"

namespace kav::temporary_matrices_test {
namespace {

using test::MatrixOf;
using test::Spelled;
using Names = std::vector<std::string>;

constexpr uid_t kNobody = 65534;
constexpr const char* kName = "kavm7.dat";

/// The one folder in `parent`.
std::string OnlyFolderIn(const TemporaryFolder& parent) {
  const auto names = parent.Names();
  return names.size() == 1 ? parent.File(names.front()) : "";
}

TEST(TemporaryMatrices, AreNamedByNumber) {
  EXPECT_EQ(TemporaryMatrices::NameOf(0), "kavm0.dat");
  EXPECT_EQ(TemporaryMatrices::NameOf(70), "kavm70.dat");
}

TEST(TemporaryMatrices, WhatIsWrittenIsRead) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  EXPECT_TRUE(files.Write("kavm0.dat", MatrixOf("1 2; 3 4")));
  EXPECT_TRUE(files.Write("kavm1.dat", MatrixOf("5")));
  EXPECT_EQ(Spelled(*files.Read("kavm0.dat")), "1 2; 3 4");
  EXPECT_EQ(Spelled(*files.Read("kavm1.dat")), "5");
  EXPECT_EQ(FileContent(OnlyFolderIn(parent) + "/kavm0.dat"), "[2*2]\r\n1\t2\r\n3\t4\r\n");
  EXPECT_TRUE(files.Write("kavm0.dat", MatrixOf("6")));
  EXPECT_EQ(FileContent(OnlyFolderIn(parent) + "/kavm0.dat"), "[1*1]\r\n6\r\n");
}

TEST(TemporaryMatrices, WhatIsNotThereIsNotRead) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  EXPECT_FALSE(files.Read(kName));
  files.Remove(kName);
  ASSERT_TRUE(files.Write(kName, MatrixOf("1")));
  files.Remove(kName);
  EXPECT_FALSE(files.Read(kName));
}

TEST(TemporaryMatrices, TheFolderIsMadeForTheFirstMatrixAndGoesWithTheObject) {
  const TemporaryFolder parent;
  {
    TemporaryMatrices files(parent.Path());
    EXPECT_EQ(parent.Names(), Names{});
    ASSERT_TRUE(files.Write("kavm0.dat", MatrixOf("1")));
    ASSERT_TRUE(files.Write("kavm1.dat", MatrixOf("1")));
    ASSERT_EQ(parent.Names().size(), 1U);
    EXPECT_EQ(parent.Names().front().rfind("kav-matrix-", 0), 0U);
    EXPECT_EQ(parent.Names().front().size(), 17U);
  }
  EXPECT_EQ(parent.Names(), Names{});
}

TEST(TemporaryMatrices, OnlyTheUserCanReadThem) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  ASSERT_TRUE(files.Write(kName, MatrixOf("1")));
  EXPECT_EQ(PermissionsOf(OnlyFolderIn(parent)), 0700U);
  EXPECT_EQ(PermissionsOf(OnlyFolderIn(parent) + "/" + kName), 0600U);
}

TEST(TemporaryMatrices, StandWhereTheSystemWantsTemporaryFiles) {
  const TemporaryFolder parent;
  setenv("TMPDIR", parent.Path().c_str(), 1);
  {
    TemporaryMatrices files;
    EXPECT_TRUE(files.Write(kName, MatrixOf("1")));
    EXPECT_NE(OnlyFolderIn(parent), "");
  }
  unsetenv("TMPDIR");
}

TEST(TemporaryMatrices, AParentThatIsNoneIsAFailure) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "");
  for (const auto& parent : {folder.File("file"), folder.File("missing"), std::string()}) {
    TemporaryMatrices files(parent);
    if (parent.empty() && geteuid() == 0) continue;  // Root may write into "/".
    EXPECT_FALSE(files.Write(kName, MatrixOf("1"))) << parent;
    EXPECT_FALSE(files.Read(kName)) << parent;
  }
  EXPECT_EQ(folder.Names(), Names{"file"});
}

TEST(TemporaryMatrices, AParentThatIsReadOnlyIsAFailure) {
  const TemporaryFolder parent;
  chmod(parent.Path().c_str(), 0555);
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              TemporaryMatrices files(parent.Path());
              return files.Write(kName, MatrixOf("1")) ? 1 : 0;
            }),
            0);
  EXPECT_EQ(parent.Names(), Names{});
}

TEST(TemporaryMatrices, WithoutSpaceNothingHasTheName) {
  const TemporaryFolder parent;
  EXPECT_EQ(InAnotherProcess([&] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{12, 12};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
              TemporaryMatrices files(parent.Path());
              if (!files.Write(kName, MatrixOf("1"))) return 3;
              if (files.Write(kName, MatrixOf("1 2; 3 4"))) return 4;
              if (Exists(OnlyFolderIn(parent) + "/" + kName)) return 5;
              return files.Read(kName) ? 6 : 0;
            }),
            0);
  EXPECT_EQ(parent.Names(), Names{});
}

TEST(TemporaryMatrices, AFolderThatWasClearedAwayIsMadeAnew) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  ASSERT_TRUE(files.Write(kName, MatrixOf("1")));
  std::filesystem::remove_all(OnlyFolderIn(parent));
  EXPECT_FALSE(files.Read(kName));
  EXPECT_TRUE(files.Write(kName, MatrixOf("2")));
  EXPECT_EQ(Spelled(*files.Read(kName)), "2");
}

TEST(TemporaryMatrices, ALinkUnderTheNameIsNotWrittenThrough) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  ASSERT_TRUE(files.Write("kavm0.dat", MatrixOf("1")));
  const std::string folder = OnlyFolderIn(parent);
  PutFile(folder + "/target", "precious");
  symlink("target", (folder + "/" + kName).c_str());
  EXPECT_FALSE(files.Write(kName, MatrixOf("1")));
  EXPECT_EQ(FileContent(folder + "/target"), "precious");
  unlink((folder + "/target").c_str());
}

/// Starts a process that writes a matrix and then waits to be killed. Returns once `folders`
/// folders in `parent` have a matrix.
pid_t StartWriter(const TemporaryFolder& parent, std::size_t folders) {
  const pid_t writer = StartProcess([&] {
    TemporaryMatrices files(parent.Path());
    files.Write(kName, MatrixOf("1 2; 3 4"));
    while (true) pause();
    return 0;
  });
  const auto isThere = [&] {
    const auto names = parent.Names();
    return names.size() == folders &&
           std::all_of(names.begin(), names.end(), [&](const std::string& name) {
             return !FileContent(parent.File(name) + "/" + kName).empty();
           });
  };
  while (!isThere()) usleep(1000);
  return writer;
}

TEST(TemporaryMatrices, WhatAKilledProcessLeftIsRemovedByTheNext) {
  const TemporaryFolder parent;
  const pid_t killed = StartWriter(parent, 1);
  const pid_t living = StartWriter(parent, 2);
  kill(killed, SIGKILL);
  ResultOf(killed);
  EXPECT_EQ(parent.Names().size(), 2U);
  { TemporaryMatrices files(parent.Path()); }
  ASSERT_EQ(parent.Names().size(), 1U) << "the living process keeps its folder";
  EXPECT_EQ(FileContent(OnlyFolderIn(parent) + "/" + kName), "[2*2]\r\n1\t2\r\n3\t4\r\n");
  kill(living, SIGKILL);
  ResultOf(living);
  { TemporaryMatrices files(parent.Path()); }
  EXPECT_EQ(parent.Names(), Names{});
}

TEST(TemporaryMatrices, TwoOfOneProcessDoNotDisturbEachOther) {
  const TemporaryFolder parent;
  TemporaryMatrices first(parent.Path());
  ASSERT_TRUE(first.Write(kName, MatrixOf("1")));
  {
    TemporaryMatrices second(parent.Path());
    ASSERT_TRUE(second.Write(kName, MatrixOf("2")));
    EXPECT_EQ(Spelled(*first.Read(kName)), "1");
    EXPECT_EQ(Spelled(*second.Read(kName)), "2");
  }
  EXPECT_EQ(Spelled(*first.Read(kName)), "1");
}

TEST(TemporaryMatrices, OnlyWhatIsOursIsTakenForLeftBehind) {
  const TemporaryFolder parent;
  for (const char* name : {"kav-matrix-", "kav-matrix-12345", "kav-matrix-1234567",
                           "kav-matriy-123456", "xkav-matrix-123456", "elsewhere"}) {
    mkdir(parent.File(name).c_str(), 0700);
    PutFile(parent.File(name) + "/kavm0.dat", "x");
  }
  PutFile(parent.File("kav-matrix-a-file"), "x");
  symlink("elsewhere", parent.File("kav-matrix-a-link").c_str());
  mkdir(parent.File("kav-matrix-guests").c_str(), 0700);
  for (const char* name : {"kavm0.dat", "kavm12.dat", "kavm.dat", "kavm0.dat.txt", "note"}) {
    PutFile(parent.File("kav-matrix-guests/") + name, "x");
  }
  mkdir(parent.File("kav-matrix-guests/kavm5.dat").c_str(), 0700);
  mkdir(parent.File("kav-matrix-empty1").c_str(), 0700);
  const auto before = parent.Names();
  { TemporaryMatrices files(parent.Path()); }
  auto expected = before;
  std::erase(expected, "kav-matrix-empty1");
  EXPECT_EQ(parent.Names(), expected);
  EXPECT_EQ(FileContent(parent.File("elsewhere/kavm0.dat")), "x");
  for (const char* name : {"kavm.dat", "kavm0.dat.txt", "note", "kavm5.dat"}) {
    EXPECT_TRUE(Exists(parent.File("kav-matrix-guests/") + name)) << name;
  }
  EXPECT_FALSE(Exists(parent.File("kav-matrix-guests/kavm0.dat")));
  EXPECT_FALSE(Exists(parent.File("kav-matrix-guests/kavm12.dat")));
}

TEST(TemporaryMatrices, TheFolderOfAnotherUserStays) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can make one";
  const TemporaryFolder parent;
  mkdir(parent.File("kav-matrix-123456").c_str(), 0700);
  ASSERT_EQ(chown(parent.File("kav-matrix-123456").c_str(), kNobody, kNobody), 0);
  { TemporaryMatrices files(parent.Path()); }
  EXPECT_EQ(parent.Names(), Names{"kav-matrix-123456"});
}

TEST(TemporaryMatrices, AForkedProcessLeavesTheFolderToItsParentAndMakesItsOwn) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  ASSERT_TRUE(files.Write(kName, MatrixOf("1")));
  EXPECT_EQ(InAnotherProcess([&] {
              if (!files.Write(kName, MatrixOf("2"))) return 2;
              if (parent.Names().size() != 2) return 3;
              files.~TemporaryMatrices();
              return parent.Names().size() == 1 ? 0 : 4;
            }),
            0);
  EXPECT_EQ(Spelled(*files.Read(kName)), "1");
  EXPECT_EQ(InAnotherProcess([&] {
              files.~TemporaryMatrices();
              return 0;
            }),
            0);
  EXPECT_EQ(Spelled(*files.Read(kName)), "1");
}

TEST(TemporaryMatrices, SignalsDoNotInterruptAWriter) {
  const TemporaryFolder parent;
  EXPECT_EQ(InAnotherProcess([&] {
              struct sigaction action {};
              action.sa_handler = [](int) {};
              sigaction(SIGALRM, &action, nullptr);
              const itimerval often{{0, 50}, {0, 50}};
              setitimer(ITIMER_REAL, &often, nullptr);
              TemporaryMatrices files(parent.Path());
              for (int i = 0; i < 500; ++i) {
                if (!files.Write(kName, MatrixOf("1 2; 3 4"))) return 1;
                if (!files.Read(kName)) return 2;
              }
              return 0;
            }),
            0);
  EXPECT_EQ(parent.Names(), Names{});
}

}  // namespace
}  // namespace kav::temporary_matrices_test
