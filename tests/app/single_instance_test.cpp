#include "app/single_instance.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

#include "support/temporary_folder.h"

namespace kav::single_instance_test {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using Outcome = SingleInstance::Outcome;

constexpr milliseconds kPatience(500);

class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() { chmod(folder_.Path().c_str(), 0700); }

  FileDescriptor Folder() { return OpenMeetingFolder(folder_.Path(), "/nowhere"); }
  SingleInstance Claim(milliseconds patience = kPatience) {
    return SingleInstance::Claim(Folder(), patience);
  }
  std::string Socket() { return folder_.File("kav-calculator.socket"); }
  std::string Lock() { return folder_.File("kav-calculator.lock"); }

  TemporaryFolder folder_;
};

/// Takes calls until one has come, or half a minute has passed.
bool WaitForCall(const SingleInstance& instance) {
  pollfd wait{instance.CallSocket(), POLLIN, 0};
  return poll(&wait, 1, 30000) == 1 && instance.TakeCalls();
}

TEST_F(SingleInstanceTest, TheFirstRuns) {
  const SingleInstance first = Claim();
  EXPECT_EQ(first.Result(), Outcome::First);
  EXPECT_GE(first.CallSocket(), 0);
  EXPECT_FALSE(first.TakeCalls());
}

TEST_F(SingleInstanceTest, TheSecondCallsTheFirst) {
  const SingleInstance first = Claim();
  const pid_t second = StartProcess(
      [this] { return Claim(milliseconds(30000)).Result() == Outcome::Called ? 0 : 1; });
  EXPECT_TRUE(WaitForCall(first));
  EXPECT_EQ(ResultOf(second), 0);
  EXPECT_FALSE(first.TakeCalls());
}

TEST_F(SingleInstanceTest, TheSecondDoesNotWaitForeverForOneThatIsTooBusyToAnswer) {
  const SingleInstance first = Claim();
  const auto start = steady_clock::now();
  EXPECT_EQ(Claim().Result(), Outcome::Busy);
  EXPECT_GE(steady_clock::now() - start, kPatience * 9 / 10);
  EXPECT_LT(steady_clock::now() - start, kPatience * 10);
  EXPECT_TRUE(first.TakeCalls()) << "it hears of the call when it has time";
}

TEST_F(SingleInstanceTest, AfterTheEndOfTheFirstAnotherRuns) {
  { EXPECT_EQ(Claim().Result(), Outcome::First); }
  EXPECT_EQ(Claim().Result(), Outcome::First);
}

TEST_F(SingleInstanceTest, AKilledFirstDoesNotStopTheNext) {
  const pid_t first = StartProcess([this] {
    const SingleInstance instance = Claim();
    pause();
    return 0;
  });
  while (!Exists(Socket())) std::this_thread::sleep_for(milliseconds(1));
  kill(first, SIGKILL);
  ResultOf(first);
  EXPECT_TRUE(Exists(Socket())) << "what it left behind";
  const SingleInstance next = Claim();
  EXPECT_EQ(next.Result(), Outcome::First);
  const pid_t third = StartProcess(
      [this] { return Claim(milliseconds(30000)).Result() == Outcome::Called ? 0 : 1; });
  EXPECT_TRUE(WaitForCall(next));
  EXPECT_EQ(ResultOf(third), 0);
}

TEST_F(SingleInstanceTest, OfManyStartedAtOnceOneRunsAndAllOthersCallIt) {
  constexpr int kCopies = 16;
  int gate[2];
  ASSERT_EQ(pipe(gate), 0);
  std::vector<pid_t> copies;
  for (int i = 0; i < kCopies; ++i) {
    copies.push_back(StartProcess([&] {
      close(gate[1]);
      char byte = 0;
      (void)!read(gate[0], &byte, 1);  // until the gate is closed, for all at once
      const SingleInstance instance = Claim(milliseconds(30000));
      if (instance.Result() != Outcome::First) {
        return instance.Result() == Outcome::Called ? 0 : 1;
      }
      for (int calls = 0; calls < kCopies - 1;) {
        pollfd wait{instance.CallSocket(), POLLIN, 0};
        if (poll(&wait, 1, 2000) != 1) break;
        calls += instance.TakeCalls() ? 1 : 0;
      }
      return 2;
    }));
  }
  close(gate[0]);
  close(gate[1]);
  int first = 0;
  int called = 0;
  for (const pid_t copy : copies) {
    const int result = ResultOf(copy);
    first += result == 2 ? 1 : 0;
    called += result == 0 ? 1 : 0;
  }
  EXPECT_EQ(first, 1);
  EXPECT_EQ(called, kCopies - 1);
}

TEST_F(SingleInstanceTest, WhoCallsOneThatIsEndingWaitsAndIsTheNextFirst) {
  auto ending = std::make_unique<SingleInstance>(Claim());
  ending->StopListening();
  EXPECT_EQ(ending->CallSocket(), -1);
  EXPECT_FALSE(Exists(Socket()));
  const pid_t next = StartProcess([this, &ending] {
    ending.reset();  // a copy of the lock would go on holding it
    return Claim(milliseconds(30000)).Result() == Outcome::First ? 0 : 1;
  });
  std::this_thread::sleep_for(milliseconds(50));
  ending.reset();
  EXPECT_EQ(ResultOf(next), 0);
}

TEST_F(SingleInstanceTest, ACallThatIsNeverAnsweredBecauseTheFirstEndsIsMadeAnew) {
  auto ending = std::make_unique<SingleInstance>(Claim());
  const pid_t next = StartProcess([this, &ending] {
    ending.reset();
    return Claim(milliseconds(30000)).Result() == Outcome::First ? 0 : 1;
  });
  pollfd wait{ending->CallSocket(), POLLIN, 0};
  ASSERT_EQ(poll(&wait, 1, 30000), 1);
  ending->StopListening();
  ending.reset();
  EXPECT_EQ(ResultOf(next), 0);
}

TEST_F(SingleInstanceTest, LockAndSocketAreTheUsersOwn) {
  const SingleInstance first = Claim();
  EXPECT_EQ(PermissionsOf(folder_.Path()), 0700U);
  EXPECT_EQ(PermissionsOf(Lock()) & 0777U, 0600U);
}

TEST_F(SingleInstanceTest, AnotherUserCannotReachTheSocket) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can become somebody else";
  const SingleInstance first = Claim();
  const int result = InAnotherProcess([this] {
    if (setuid(65534) != 0) return 2;
    const int caller = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = Socket();
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    return connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? 1
                                                                                             : 0;
  });
  EXPECT_EQ(result, 0);
}

TEST_F(SingleInstanceTest, ACallOfAnotherUserThatGotThroughIsNotHeard) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can become somebody else";
  const SingleInstance first = Claim();
  const int result = InAnotherProcess([this] {
    chmod(folder_.Path().c_str(), 0777);  // as if the folder had been open to all
    chmod(Socket().c_str(), 0777);
    if (setuid(65534) != 0) return 2;
    const int caller = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    Socket().copy(address.sun_path, sizeof address.sun_path - 1);
    return connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? 0
                                                                                             : 1;
  });
  ASSERT_EQ(result, 0);
  EXPECT_FALSE(first.TakeCalls());
}

TEST_F(SingleInstanceTest, WithoutAPlaceToMeetItRunsAlone) {
  const SingleInstance instance = SingleInstance::Claim(FileDescriptor(-1), kPatience);
  EXPECT_EQ(instance.Result(), Outcome::Alone);
  EXPECT_EQ(instance.CallSocket(), -1);
}

TEST_F(SingleInstanceTest, ALinkInPlaceOfTheLockIsNotFollowed) {
  const std::string target = folder_.File("victim");
  ASSERT_EQ(symlink(target.c_str(), Lock().c_str()), 0);
  EXPECT_EQ(Claim().Result(), Outcome::Alone);
  EXPECT_FALSE(Exists(target));
}

// The folder to meet in.

class MeetingFolderTest : public testing::Test {
 protected:
  std::string Fallback() { return temporary_.File("kav-calculator-" + std::to_string(geteuid())); }
  /// The path of the folder that was chosen; empty for none.
  std::string Chosen(const std::string& runtime) {
    const FileDescriptor folder = OpenMeetingFolder(runtime, temporary_.Path());
    if (!folder.IsOpen()) return {};
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(folder.Number()));
  }

  TemporaryFolder runtime_;
  TemporaryFolder temporary_;
};

TEST_F(MeetingFolderTest, IsTheRuntimeFolderWhereNobodyElseHasAccess) {
  chmod(runtime_.Path().c_str(), 0700);
  EXPECT_EQ(Chosen(runtime_.Path()), runtime_.Path());
  EXPECT_FALSE(Exists(Fallback()));
}

TEST_F(MeetingFolderTest, IsAFolderOfOurOwnWhereThereIsNoSafeRuntimeFolder) {
  chmod(runtime_.Path().c_str(), 0755);
  for (const std::string& runtime : {std::string(), std::string("/nowhere"), runtime_.Path()}) {
    EXPECT_EQ(Chosen(runtime), Fallback()) << runtime;
    EXPECT_EQ(PermissionsOf(Fallback()), 0700U);
  }
}

TEST_F(MeetingFolderTest, IsNoneWhereTheFallbackIsOpenToOthers) {
  mkdir(Fallback().c_str(), 0755);
  chmod(Fallback().c_str(), 0755);
  EXPECT_EQ(Chosen(""), "");
}

TEST_F(MeetingFolderTest, IsNoneWhereTheFallbackBelongsToSomebodyElse) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  mkdir(Fallback().c_str(), 0700);
  ASSERT_EQ(chown(Fallback().c_str(), 65534, 65534), 0);
  EXPECT_EQ(Chosen(""), "");
}

TEST_F(MeetingFolderTest, IsNoneWhereTheFallbackIsALink) {
  chmod(runtime_.Path().c_str(), 0700);
  ASSERT_EQ(symlink(runtime_.Path().c_str(), Fallback().c_str()), 0);
  EXPECT_EQ(Chosen(""), "");
}

TEST_F(MeetingFolderTest, MayHaveAPathLongerThanASocketsAddress) {
  const std::string longer = runtime_.File(std::string(120, 'x'));
  mkdir(longer.c_str(), 0700);
  const SingleInstance first =
      SingleInstance::Claim(OpenMeetingFolder(longer, "/nowhere"), kPatience);
  EXPECT_EQ(first.Result(), Outcome::First);
  EXPECT_GE(first.CallSocket(), 0);
}

}  // namespace
}  // namespace kav::single_instance_test
