// The lines that were typed at the prompt, kept from one run to the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kav {

/// A text file, a line each, the newest last. Several prompts may use one at the same time. Where
/// it cannot be used, standard error is told once and the lines last as long as the prompt.
class HistoryFile {
 public:
  static constexpr std::size_t kCapacity = 1000;

  /// The file `path`, made when it is first needed; an empty path keeps nothing.
  explicit HistoryFile(std::string path) : path_(std::move(path)) {}

  /// The newest kCapacity lines, oldest first. Older ones are removed from the file.
  std::vector<std::string> Load();
  /// Adds `line`, which is kept at once; one of more than 4096 bytes is not worth it.
  void Append(std::string_view line);

 private:
  void GiveUp(int error);

  std::string path_;
};

}  // namespace kav
