#include "cli/history_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <optional>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "settings/atomic_file.h"
#include "settings/file_descriptor.h"
#include "store/file_lock.h"

namespace kav {
namespace {

constexpr std::size_t kLongestLine = 4096;
// As much of the file as the newest lines can take, each with its end.
constexpr std::size_t kLongestTail = HistoryFile::kCapacity * (kLongestLine + 1);
// Another prompt holds the lock for a moment only, however many there are.
constexpr std::chrono::seconds kPatience{2};

/// The newest lines of a file, and whether there is more before them.
struct Tail {
  std::vector<std::string> lines;
  bool isAll;
};

/// The lines of `text`, the newest ones if there are too many.
Tail TailOf(std::string_view text) {
  Tail tail{{}, true};
  while (!text.empty() && tail.lines.size() < HistoryFile::kCapacity) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    const std::size_t end = text.rfind('\n');
    const std::size_t begin = end == text.npos ? 0 : end + 1;
    if (begin < text.size()) tail.lines.emplace_back(text.substr(begin));
    text = text.substr(0, begin);
  }
  std::reverse(tail.lines.begin(), tail.lines.end());
  tail.isAll = text.find_first_not_of('\n') == text.npos;
  return tail;
}

/// The end of the file `path`, of which a part of a line may be the start; nullopt if it cannot be
/// read, or is no file.
std::optional<Tail> ReadTail(const std::string& path) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode)) return std::nullopt;
  const auto size = static_cast<std::size_t>(status.st_size);
  const std::size_t skipped = size > kLongestTail ? size - kLongestTail : 0;
  if (lseek(file.Number(), static_cast<off_t>(skipped), SEEK_SET) < 0) return std::nullopt;
  std::string text(size - skipped, '\0');
  std::size_t filled = 0;
  while (filled < text.size()) {
    const auto got = ReadSome(file.Number(), &text[filled], text.size() - filled);
    if (!got) return std::nullopt;
    if (*got == 0) break;
    filled += *got;
  }
  text.resize(filled);
  if (skipped == 0) return TailOf(text);
  Tail tail = TailOf(text.substr(std::min(text.find('\n'), text.size() - 1) + 1));
  tail.isAll = false;
  return tail;
}

std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line) += '\n';
  return text;
}

}  // namespace

HistoryFile::HistoryFile(std::string path) : path_(FollowLinks(std::move(path))) {}

std::vector<std::string> HistoryFile::Load() {
  const auto tail = ReadTail(path_);
  if (!tail) return {};
  if (!tail->isAll) Cut();
  return tail->lines;
}

/// Removes old lines. If this fails, so will adding a line, and that is told.
void HistoryFile::Cut() {
  const auto lock = FileLock::AcquireFor(path_, kPatience);
  if (!lock) return;
  // Another prompt may have added lines, or cut the file, before it was locked.
  const auto tail = ReadTail(path_);
  if (tail && !tail->isAll) static_cast<void>(ReplaceFile(path_, TextOf(tail->lines)));
}

void HistoryFile::Append(std::string_view line) {
  if (path_.empty() || line.size() > kLongestLine) return;
  MakeFoldersFor(path_);
  // Where there is no lock to be had, nobody cuts the file either.
  const auto lock = FileLock::AcquireFor(path_, kPatience);
  constexpr int kHow = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  const FileDescriptor file(open(path_.c_str(), kHow, 0600));  // NOLINT: the system's interface
  if (!file.IsOpen()) return GiveUp(errno);
  const int error = WriteAll(file.Number(), std::string(line) + '\n');
  if (error != 0) GiveUp(error);
}

void HistoryFile::GiveUp(int error) {
  Tell(CannotKeepHistory(path_, SystemReason(error)));
  path_.clear();
}

}  // namespace kav
