#include "cli/history_file.h"

#include <fcntl.h>

#include <cerrno>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "settings/atomic_file.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

constexpr std::size_t kLongestLine = 4096;
// More than the prompt can add before it is started the next time.
constexpr std::size_t kLargestFile = std::size_t{64} << 20U;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    if (end > 0) lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string TextOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line) += '\n';
  return text;
}

}  // namespace

std::vector<std::string> HistoryFile::Load() {
  const auto text = ReadWholeFile(path_, kLargestFile);
  if (!text) return {};
  std::vector<std::string> lines = LinesOf(*text);
  if (lines.size() <= kCapacity) return lines;
  lines.erase(lines.begin(), lines.end() - static_cast<std::ptrdiff_t>(kCapacity));
  // If this fails, so will adding a line, and that is told.
  static_cast<void>(ReplaceFile(path_, TextOf(lines)));
  return lines;
}

void HistoryFile::Append(std::string_view line) {
  if (path_.empty() || line.size() > kLongestLine) return;
  MakeFoldersFor(path_);
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
