// The lines typed at the prompt, kept from one run to the next.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// A text file of lines, the newest last. Several prompts may use one file at the same time: each
/// adds and cuts while it holds the lock of the file's folder. A symbolic link stays one. If the
/// file cannot be written, standard error is told once, and nothing is kept from then on.
class HistoryFile {
 public:
  static constexpr std::size_t kCapacity = 1000;

  /// The file at `path`, which is made when it is first needed. With an empty path nothing is kept.
  explicit HistoryFile(std::string path);

  /// The newest kCapacity lines, the oldest first; none if the file cannot be read. Removes older
  /// lines from the file. Reads no more of it than these lines can take.
  std::vector<std::string> Load();
  /// Adds `line` to the file at once, unless it is longer than 4096 bytes.
  void Append(std::string_view line);

 private:
  void Cut();
  void GiveUp(int error);

  std::string path_;
};

}  // namespace kav
