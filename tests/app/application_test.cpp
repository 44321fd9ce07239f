// The program itself, as processes of the system see it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "support/temporary_folder.h"

namespace kav::application_test {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class ApplicationTest : public testing::Test {
 protected:
  ApplicationTest() {
    chmod(home_.Path().c_str(), 0700);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
      setenv(name, home_.Path().c_str(), 1);
    }
  }
  ~ApplicationTest() override {
    for (const pid_t copy : copies_) kill(copy, SIGKILL);
    for (const pid_t copy : copies_) waitpid(copy, nullptr, 0);
  }

  /// Starts a copy of the program.
  pid_t Start(std::vector<std::string> arguments = {}) {
    const pid_t copy = fork();
    if (copy == 0) {
      const int out = open(Output().c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
      dup2(out, STDERR_FILENO);
      std::string program = KAV_CALCULATOR;
      std::vector<char*> argv{program.data()};
      for (std::string& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      execv(KAV_CALCULATOR, argv.data());
      _exit(127);
    }
    copies_.push_back(copy);
    return copy;
  }

  /// The exit status of a copy that ends within ten seconds; -2 if it was killed, -1 if it goes on.
  int StatusOf(pid_t copy) {
    for (const auto start = steady_clock::now();
         steady_clock::now() - start < std::chrono::seconds(10);) {
      int status = 0;
      if (waitpid(copy, &status, WNOHANG) == copy) {
        std::erase(copies_, copy);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -2;
      }
      std::this_thread::sleep_for(milliseconds(5));
    }
    return -1;
  }

  bool Runs(pid_t copy) { return waitpid(copy, nullptr, WNOHANG) == 0; }

  /// Waits until a copy is ready to be called.
  void WaitForFirst() {
    for (int i = 0; i < 2000 && !Exists(home_.File("kav-calculator.socket")); ++i) {
      std::this_thread::sleep_for(milliseconds(5));
    }
  }

  std::string Output() { return home_.File("stderr"); }
  std::string Settings() { return home_.File("kav-calculator/settings.toml"); }

  TemporaryFolder home_;
  std::vector<pid_t> copies_;
};

TEST_F(ApplicationTest, ASecondCopyEndsWithZeroAndTheFirstGoesOn) {
  const pid_t first = Start();
  WaitForFirst();
  EXPECT_EQ(StatusOf(Start()), 0);
  EXPECT_EQ(StatusOf(Start()), 0);
  EXPECT_TRUE(Runs(first));
}

TEST_F(ApplicationTest, OfManyStartedInTheSameInstantOneGoesOn) {
  for (int i = 0; i < 8; ++i) Start();
  std::vector<pid_t> running = copies_;
  for (const auto start = steady_clock::now();
       running.size() > 1 && steady_clock::now() - start < std::chrono::seconds(20);) {
    for (const pid_t copy : std::vector<pid_t>(running)) {
      int status = 0;
      if (waitpid(copy, &status, WNOHANG) != copy) continue;
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
      std::erase(running, copy);
      std::erase(copies_, copy);
    }
    std::this_thread::sleep_for(milliseconds(5));
  }
  ASSERT_EQ(running.size(), 1U);
  std::this_thread::sleep_for(milliseconds(200));
  EXPECT_TRUE(Runs(running.front()));
}

TEST_F(ApplicationTest, AKilledCopyDoesNotStopTheNextStart) {
  const pid_t first = Start();
  WaitForFirst();
  kill(first, SIGKILL);
  EXPECT_EQ(StatusOf(first), -2);
  const pid_t next = Start();
  std::this_thread::sleep_for(milliseconds(500));
  EXPECT_TRUE(Runs(next));
  EXPECT_EQ(StatusOf(Start()), 0);
  EXPECT_TRUE(Runs(next));
}

TEST_F(ApplicationTest, ASecondCopyDoesNotEndInSilenceIfTheFirstHangs) {
  const pid_t first = Start();
  WaitForFirst();
  kill(first, SIGSTOP);
  const pid_t second = Start();
  std::this_thread::sleep_for(milliseconds(2500));
  EXPECT_TRUE(Runs(second)) << "it asks";
  kill(second, SIGTERM);
  EXPECT_EQ(StatusOf(second), 0);
  kill(first, SIGCONT);
  EXPECT_TRUE(Runs(first));
}

TEST_F(ApplicationTest, AnEndedCopyHasSavedItsSettingsAndMakesRoomForTheNext) {
  const pid_t first = Start();
  WaitForFirst();
  std::this_thread::sleep_for(milliseconds(300));
  kill(first, SIGTERM);
  EXPECT_EQ(StatusOf(first), 0);
  EXPECT_NE(FileContent(Settings()).find("Mode = 1"), std::string::npos);
  const pid_t next = Start();
  std::this_thread::sleep_for(milliseconds(300));
  EXPECT_TRUE(Runs(next));
}

TEST_F(ApplicationTest, ALimitOnTheSizeOfFilesDoesNotEndIt) {
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit none{0, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &none);
  const pid_t copy = Start();
  setrlimit(RLIMIT_FSIZE, &before);
  WaitForFirst();
  std::this_thread::sleep_for(milliseconds(300));
  kill(copy, SIGTERM);
  EXPECT_EQ(StatusOf(copy), 0);
  EXPECT_FALSE(Exists(Settings()));
}

TEST_F(ApplicationTest, ArgumentsAreRefused) {
  for (const char* argument : {"1+1", "--help", "--version", "-x"}) {
    std::filesystem::remove(Output());
    EXPECT_EQ(StatusOf(Start({argument})), 2) << argument;
    EXPECT_EQ(FileContent(Output()),
              "kav-calculator takes no arguments; kavcalc is the calculator for the command line\n")
        << argument;
    EXPECT_FALSE(Exists(Settings()));
  }
}

TEST_F(ApplicationTest, TheToolkitsOwnArgumentsAreNotRefused) {
  const pid_t copy = Start({"-platform", "offscreen"});
  WaitForFirst();
  std::this_thread::sleep_for(milliseconds(300));
  EXPECT_TRUE(Runs(copy));
}

}  // namespace
}  // namespace kav::application_test
