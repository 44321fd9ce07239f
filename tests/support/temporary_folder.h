// A folder of a test's own, and what tests of files do in it.
#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace kav {

/// An empty folder that others may enter, removed with all in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "kav-test-XXXXXX";
    path_ = mkdtemp(name.data());
    chmod(path_.c_str(), 0755);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    chmod(path_.c_str(), 0700);  // whatever a test did to it
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string Path() const { return path_; }
  std::string File(const std::string& name) const { return path_ + "/" + name; }

  /// The names of all there is in the folder, in order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::string path_;
};

inline void PutFile(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

inline std::string FileContent(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline bool Exists(const std::string& path) {
  struct stat status {};
  return lstat(path.c_str(), &status) == 0;
}

inline struct stat StatusOf(const std::string& path) {
  struct stat status {};
  lstat(path.c_str(), &status);
  return status;
}

inline unsigned PermissionsOf(const std::string& path) {
  return StatusOf(path).st_mode & 07777U;
}

/// Starts a process that does `work` and ends with what it returns (0 to 255).
template <class Work>
pid_t StartProcess(Work work) {
  const pid_t child = fork();
  if (child == 0) _exit(work());
  return child;
}

/// The number that a process ended with; -1 if it was killed.
inline int ResultOf(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

template <class Work>
int InAnotherProcess(Work work) {
  return ResultOf(StartProcess(work));
}

}  // namespace kav
