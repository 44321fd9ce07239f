#include "store/past_lines_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <limits>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "settings/atomic_file.h"
#include "settings/file_descriptor.h"
#include "settings/file_rights.h"
#include "store/file_lock.h"
#include "store/past_lines_texts.h"
#include "store/past_record.h"
#include "store/settings_path.h"

namespace kav {
namespace {

using std::chrono::milliseconds;

constexpr std::string_view kFileName = "past_lines";
constexpr std::string_view kOldFileName = "kavcalc_history";

// As much of a file as is read, its end: older lines are dropped.
constexpr std::size_t kMostRead = std::size_t{8} << 20U;
// Holds the newest record of any length.
constexpr std::size_t kNewestPart = 2 * (PastLines::kLongestLine + PastLines::kLongestAnswer) + 64;
// A file with two full rooms of usual lines is smaller.
constexpr std::size_t kLeastCut = std::size_t{256} << 10U;

constexpr milliseconds kNoPatience{0};
// For what the user has just asked a window to do.
constexpr milliseconds kPatienceOfWindow{250};
constexpr milliseconds kPatience{2000};

std::int64_t Now() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

/// The least id behind `id`. The largest of all has none behind it; no clock comes there.
std::int64_t NextId(std::int64_t id) {
  return id == std::numeric_limits<std::int64_t>::max() ? id : id + 1;
}

bool IsThere(const std::string& path) {
  return !path.empty() && access(path.c_str(), F_OK) == 0;
}

/// Whether nothing is kept in `path` yet: it is not there, or who made it could not write into it.
bool IsUnwritten(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) != 0 || status.st_size == 0;
}

/// The size of an open file; nullopt if it is no file, with errno as if it could not be opened.
std::optional<std::size_t> SizeOf(const FileDescriptor& file) {
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return std::nullopt;
  if (S_ISREG(status.st_mode)) return static_cast<std::size_t>(status.st_size);
  errno = EISDIR;
  return std::nullopt;
}

/// The last `most` bytes of an open file of `size` bytes; nullopt if they cannot be read.
std::optional<std::string> EndOf(const FileDescriptor& file, std::size_t size, std::size_t most) {
  const std::size_t begin = size > most ? size - most : 0;
  std::string text(size - begin, '\0');
  std::size_t filled = 0;
  if (lseek(file.Number(), static_cast<off_t>(begin), SEEK_SET) < 0) return std::nullopt;
  while (filled < text.size()) {
    const auto got = ReadSome(file.Number(), &text[filled], text.size() - filled);
    if (!got) return std::nullopt;
    if (*got == 0) break;
    filled += *got;
  }
  text.resize(filled);
  return text;
}

/// The lines in the file `path`; nullopt, with errno, if it cannot be read.
std::optional<std::vector<PastLine>> ReadLines(const std::string& path) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  const auto size = SizeOf(file);
  const auto text = size ? EndOf(file, *size, kMostRead) : std::nullopt;
  if (!text) return std::nullopt;
  // An id that is cut off at its start is another id.
  const std::size_t whole = *size > kMostRead ? std::min(text->find('\n'), text->size()) : 0;
  return ReadRecords(std::string_view(*text).substr(whole));
}

/// The newest lines of a plain text as what prompts evaluated, long ago.
std::vector<PastLine> PlainLines(std::string_view text) {
  std::size_t begin = text.size();
  for (std::size_t i = 0; i <= PastLines::kCapacity && begin != 0 && begin != text.npos; ++i) {
    begin = text.rfind('\n', begin - 1);
  }
  if (begin != 0 && begin != text.npos) text.remove_prefix(begin + 1);
  std::vector<PastLine> lines;
  std::int64_t id = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    PastLine past{++id, PastOrigin::Prompt, 1, Narrow(Widen(text.substr(0, end))), {}};
    AddTo(lines, std::move(past));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

}  // namespace

PastLinesFile::PastLinesFile(StoreUser user)
    : PastLinesFile(StatePath(kFileName), StatePath(kOldFileName), user) {}

PastLinesFile::PastLinesFile(std::string path, std::string old, StoreUser user)
    : path_(std::move(path)), old_(std::move(old)), user_(user), cutAt_(kLeastCut) {}

std::vector<PastLine> PastLinesFile::Of(PastRoom room) {
  const milliseconds patience = user_ == StoreUser::Window ? kNoPatience : kPatience;
  if (!unsaved_.empty() || (IsThere(old_) && IsUnwritten(path_))) Save(patience);
  std::vector<PastLine> lines = ReadLines(path_).value_or(std::vector<PastLine>());
  // Who has seen a line that waits to be kept knows it by its id: that should not have to change.
  if (!lines.empty()) newestId_ = std::max(newestId_, lines.back().id);
  for (const PastLine& past : unsaved_) AddTo(lines, past);
  std::erase_if(lines, [room](const PastLine& past) { return RoomOf(past.origin) != room; });
  return lines;
}

void PastLinesFile::Add(PastLine line) {
  newestId_ = std::max(Now(), NextId(newestId_));
  line.id = newestId_;
  if (!AddTo(unsaved_, std::move(line))) return;
  Save(user_ == StoreUser::Window ? kNoPatience : kPatience);
}

bool PastLinesFile::TrySave() {
  return unsaved_.empty() || Save(kNoPatience) != FileError::Busy;
}

void PastLinesFile::SaveAtLast() {
  if (!unsaved_.empty() && Save(kPatience) == FileError::Busy) {
    TellOnce(HistoryCannotBeKept(path_, FileError::Busy));
  }
}

PastLinesFile::Outcome PastLinesFile::Save(milliseconds patience) {
  const Outcome error =
      WithLock(patience, [this](const std::string& file) { return Append(file); });
  if (!error) {
    told_.clear();
  } else if (*error != FileError::Busy || user_ == StoreUser::Command) {
    TellOnce(HistoryCannotBeKept(path_, *error));
  }
  return error;
}

/// Does `action` on the file that all links lead to while no other process changes it.
PastLinesFile::Outcome PastLinesFile::WithLock(
    milliseconds patience, const std::function<Outcome(const std::string& file)>& action) {
  if (path_.empty()) return FileError::BadPath;
  const std::string file = FollowLinks(path_);
  if (file.ends_with('/')) return FileError::NotAFile;
  MakeFoldersFor(file);
  const auto lock = FileLock::AcquireFor(file, patience);
  if (!lock) return lock.error();
  if (IsThere(old_) && IsUnwritten(file)) {
    if (const Outcome error = TakeOver(file)) return error;
  }
  return action(file);
}

PastLinesFile::Outcome PastLinesFile::TakeOver(const std::string& file) {
  const auto text = ReadWholeFile(old_, kMostRead);
  if (text) {
    const auto error =
        AppendText(file, [&](std::string_view) { return RecordsOf(PlainLines(*text)); });
    if (error) return error;
    unlink(old_.c_str());
  }
  // What cannot be read is no history of ours.
  old_.clear();
  return std::nullopt;
}

PastLinesFile::Outcome PastLinesFile::Append(const std::string& file) {
  if (unsaved_.empty()) return std::nullopt;
  const auto error = AppendText(file, [this](std::string_view end) {
    std::vector<PastLine> lines = ReadRecords(end);
    std::string text;
    for (PastLine& past : unsaved_) {
      // Ids grow along the file, whatever the clocks of those who wrote it said.
      if (!lines.empty()) past.id = std::max(past.id, NextId(lines.back().id));
      newestId_ = std::max(newestId_, past.id);
      if (AddTo(lines, past)) text += RecordOf(past);
    }
    return text;
  });
  if (!error) unsaved_.clear();
  return error;
}

/// Adds the text that `make` makes, given the end of the file, and takes back what of it could not
/// be written as a whole.
PastLinesFile::Outcome PastLinesFile::AppendText(
    const std::string& file, const std::function<std::string(std::string_view end)>& make) {
  constexpr int kHow = O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const FileDescriptor opened(open(file.c_str(), kHow, kOwnerOnly));  // NOLINT: the system's
  const auto size = SizeOf(opened);
  if (!size) return FileErrorFromErrno(errno);
  if (*size == 0) GiveToOwnerOf(FolderOf(file), opened);
  const auto end = EndOf(opened, *size, kNewestPart);
  if (!end) return FileErrorFromErrno(errno);
  const std::string text = std::string(MissingEnd(*end)).append(make(*end));
  if (const int error = WriteAll(opened.Number(), text); error != 0) {
    [[maybe_unused]] const int refused = ftruncate(opened.Number(), static_cast<off_t>(*size));
    return FileErrorFromErrno(error);
  }
  if (*size + text.size() <= cutAt_) return std::nullopt;
  // If that fails, the line is kept all the same.
  Rewrite(file, [](std::vector<PastLine>&) { return true; });
  return std::nullopt;
}

/// Writes the newest lines as `change` leaves them, if it answers that it changed any.
PastLinesFile::Outcome PastLinesFile::Rewrite(const std::string& file, const Change& change) {
  if (!IsThere(file)) return std::nullopt;
  auto lines = ReadLines(file);
  if (!lines) return FileErrorFromErrno(errno);
  if (!change(*lines)) return std::nullopt;
  RemoveLeftovers(file);
  const std::string text = RecordsOf(*lines);
  cutAt_ = std::max(kLeastCut, 2 * text.size());
  return ReplaceFile(file, text, NewFileOwner::OwnerOfFolder);
}

bool PastLinesFile::ChangeAll(const Change& change) {
  change(unsaved_);
  const Outcome error = WithLock(user_ == StoreUser::Window ? kPatienceOfWindow : kPatience,
                                 [&](const std::string& file) { return Rewrite(file, change); });
  if (error) TellOnce(HistoryCannotBeDeleted(path_, *error));
  return !error;
}

bool PastLinesFile::Remove(std::int64_t id) {
  return ChangeAll([id](std::vector<PastLine>& lines) { return RemoveFrom(lines, id); });
}

bool PastLinesFile::PutBack(const PastLine& line) {
  const auto change = [&line](std::vector<PastLine>& lines) { return PutBackInto(lines, line); };
  const Outcome error = WithLock(user_ == StoreUser::Window ? kPatienceOfWindow : kPatience,
                                 [&](const std::string& file) { return Rewrite(file, change); });
  if (!error) return true;
  change(unsaved_);
  TellOnce(HistoryCannotBeKept(path_, *error));
  return false;
}

bool PastLinesFile::Clear(PastRoom room) {
  return ChangeAll([room](std::vector<PastLine>& lines) { return ClearIn(lines, room); });
}

void PastLinesFile::TellOnce(std::u16string text) {
  if (told_ == text) return;
  told_ = text;
  notice_ = std::move(text);
}

std::optional<std::u16string> PastLinesFile::TakeNotice() {
  if (notice_.empty()) return std::nullopt;
  return std::exchange(notice_, {});
}

}  // namespace kav
