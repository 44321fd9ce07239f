#include "statistics/data_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <span>
#include <utility>

#include "common/number_text.h"
#include "settings/atomic_file.h"
#include "settings/file_descriptor.h"
#include "statistics/data_reader.h"
#include "statistics/data_texts.h"

namespace kav {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 16U;
/// The rows that are printed between two looks at the clock.
constexpr std::size_t kRowsAtOnce = 1024;

using Loaded = std::variant<DataList, WorkFailed, WorkCancelled>;
using Saved = std::variant<DataSaved, WorkFailed, WorkCancelled>;

/// An open file, read from its start to its end.
class DataSource {
 public:
  explicit DataSource(const std::string& path)
      : file_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}

  /// Why the file cannot be read; nullopt if it can.
  std::optional<FileError> Check() {
    struct stat status {};
    if (!file_.IsOpen() || fstat(file_.Number(), &status) != 0) return FileErrorFromErrno(errno);
    if (!S_ISREG(status.st_mode)) return FileError::NotAFile;
    size_ = static_cast<std::uint64_t>(status.st_size);
    return std::nullopt;
  }

  /// The next bytes, valid until the next call; none at the end of the file.
  Expected<std::string_view, FileError> Next() {
    const auto got = ReadSome(file_.Number(), block_.data(), block_.size());
    if (!got) return FileErrorFromErrno(got.error());
    position_ += *got;
    return std::string_view(block_.data(), *got);
  }

  /// Whether less was read than the file had when it was opened.
  bool HasShrunk() const { return position_ < size_; }
  /// The part of the file that was read, 0 to 1.
  double Done() const {
    if (position_ >= size_) return 1;
    return static_cast<double>(position_) / static_cast<double>(size_);
  }

 private:
  FileDescriptor file_;
  std::string block_ = std::string(kBlockSize, '\0');
  std::uint64_t size_ = 0;
  std::uint64_t position_ = 0;
};

Loaded NotLoaded(const std::string& path, std::u16string_view reason) {
  return WorkFailed{DataCannotBeLoaded(Widen(path), reason)};
}

Loaded LoadRows(const std::string& path, DataShape shape, const WorkProgress& progress) {
  DataSource source(path);
  if (const auto error = source.Check()) return NotLoaded(path, ReasonOfReading(*error));
  DataList list(shape);
  DataReader reader(shape,
                    [&list](std::span<const DataRow> rows) { return list.AppendRows(rows); });
  ProgressClock clock(progress);
  while (true) {
    if (!clock.GoesOn(source.Done())) return WorkCancelled{};
    const auto block = source.Next();
    if (!block) return NotLoaded(path, ReasonOfReading(block.error()));
    const auto fault = block->empty() ? reader.Finish() : reader.Read(*block);
    if (fault) return NotLoaded(path, ReasonOf(fault->refusal, fault->line));
    if (!block->empty()) continue;
    if (source.HasShrunk()) return NotLoaded(path, kFileHasShrunk);
    return list;
  }
}

Saved NotSaved(const std::string& path, std::u16string_view reason) {
  return WorkFailed{DataCannotBeSaved(Widen(path), reason)};
}

void AppendRow(std::string& text, const DataList& list, std::size_t row) {
  for (std::size_t i = 0; i < VariablesOf(list.Shape()); ++i) {
    text.append(list.ValueText(row, i)) += '\t';
  }
  text.append(list.CountText(row)).append("\r\n");
}

/// At least as many bytes as the rows of `list` take as text.
std::size_t SizeBound(const DataList& list) {
  constexpr std::size_t kRest = std::string_view("\t\t-2147483648\r\n").size();
  std::size_t size = 0;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    size += list.ValueText(row, 0).size() + list.ValueText(row, 1).size() + kRest;
  }
  return size;
}

/// The rows of `list` as text; nullopt if that is cancelled.
std::optional<std::string> PrintAll(const DataList& list, const WorkProgress& progress) {
  ProgressClock clock(progress);
  const auto rows = static_cast<double>(list.RowCount());
  std::string text;
  text.reserve(SizeBound(list));
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    if (row % kRowsAtOnce == 0 && !clock.GoesOn(static_cast<double>(row) / rows)) {
      return std::nullopt;
    }
    AppendRow(text, list, row);
  }
  return text;
}

Saved SaveRows(const std::string& path, const DataList& list, const WorkProgress& progress) {
  const auto text = PrintAll(list, progress);
  if (!text) return WorkCancelled{};
  const auto error = SaveFile(path, *text);
  if (error) return NotSaved(path, ReasonAndRemedy(*error));
  return DataSaved{};
}

}  // namespace

Loaded LoadDataFile(const std::string& path, DataShape shape, const WorkProgress& progress) {
  try {
    return LoadRows(path, shape, progress);
  } catch (const std::bad_alloc&) {
    return NotLoaded(path, kNoMemoryForRows);
  }
}

Saved SaveDataFile(const std::string& path, const DataList& list, const WorkProgress& progress) {
  try {
    return SaveRows(path, list, progress);
  } catch (const std::bad_alloc&) {
    return NotSaved(path, kNoMemoryToSave);
  }
}

}  // namespace kav
