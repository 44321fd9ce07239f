// kavcalc at a terminal of its own, used as by somebody who types and reads.
#pragma once

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace kav::test {

/// One run of the program at a new terminal of 80 columns and 24 lines. It is killed if it has not
/// ended when the object goes.
class Terminal {
 public:
  using Environment = std::map<std::string, std::string>;

  Terminal(std::vector<std::string> arguments, const Environment& environment,
           const std::string& outputFile = {}) {
    winsize size{24, 80, 0, 0};
    child_ = forkpty(&master_, nullptr, nullptr, &size);
    if (child_ == 0) Become(std::move(arguments), environment, outputFile);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() {
    Close();
    if (child_ > 0) Kill();
  }

  void Type(const std::string& keys) {
    while (write(master_, keys.data(), keys.size()) < 0 && errno == EINTR) {
    }
  }

  /// Reads until `text` has come, for ten seconds at most; false if it has not. The text and what
  /// came before it are not looked at again.
  bool Shows(const std::string& text) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    for (;;) {
      const std::size_t at = unread_.find(text);
      if (at != std::string::npos) {
        unread_.erase(0, at + text.size());
        return true;
      }
      if (std::chrono::steady_clock::now() > deadline || !Read()) return false;
    }
  }

  /// What has been read after the last text that was waited for.
  const std::string& Unread() const { return unread_; }

  /// Closes the terminal.
  void Close() {
    if (master_ >= 0) close(master_);
    master_ = -1;
  }

  void Kill() {
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
    child_ = -1;
  }

  /// Whether the program ends within ten seconds.
  bool Ends() {
    for (int wait = 0; wait < 1000; ++wait) {
      if (waitpid(child_, &status_, WNOHANG) == child_) {
        child_ = -1;
        return true;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
  }

  /// The exit status; -1 if the program does not end within ten seconds, or ends by a signal.
  int Status() { return Ends() && WIFEXITED(status_) ? WEXITSTATUS(status_) : -1; }

 private:
  [[noreturn]] static void Become(std::vector<std::string> arguments,
                                  const Environment& environment, const std::string& outputFile) {
    if (!outputFile.empty() && freopen(outputFile.c_str(), "w", stdout) == nullptr) _exit(126);
    std::vector<std::string> settings;
    for (const auto& [name, value] : environment) settings.push_back(name + "=" + value);
    arguments.insert(arguments.begin(), "kavcalc");
    execve(KAVCALC, Pointers(arguments).data(), Pointers(settings).data());
    _exit(127);
  }

  static std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  bool Read() {
    timeval patience{1, 0};
    fd_set ready;
    FD_ZERO(&ready);
    FD_SET(master_, &ready);
    if (select(master_ + 1, &ready, nullptr, nullptr, &patience) <= 0) return true;
    std::array<char, 4096> block;
    const ssize_t got = read(master_, block.data(), block.size());
    if (got <= 0) return false;
    unread_.append(block.data(), static_cast<std::size_t>(got));
    return true;
  }

  int master_ = -1;
  pid_t child_ = -1;
  int status_ = 0;
  std::string unread_;
};

}  // namespace kav::test
