#include "cli/data_sums.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>

#include "cli/unreadable.h"
#include "common/number_text.h"
#include "settings/file_descriptor.h"
#include "statistics/data_reader.h"
#include "statistics/data_texts.h"

namespace kav {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 16U;

/// The bytes of an open file in blocks that end where a line ends, unless the line is longer than a
/// block or the last one.
class LineBlocks {
 public:
  explicit LineBlocks(int descriptor) : descriptor_(descriptor), bytes_(kBlock, '\0') {}

  /// The next block, valid until the next call; empty at the end of the file. Fails with the
  /// system's error.
  Expected<std::string_view, int> Next() {
    std::copy(bytes_.begin() + At(given_), bytes_.begin() + At(filled_), bytes_.begin());
    filled_ -= std::exchange(given_, 0);
    while (filled_ < bytes_.size()) {
      const auto got = ReadSome(descriptor_, &bytes_[filled_], bytes_.size() - filled_);
      if (!got) return got.error();
      const std::size_t begin = std::exchange(filled_, filled_ + *got);
      const void* const end = memrchr(&bytes_[begin], '\n', *got);
      if (end != nullptr)
        return Give(static_cast<std::size_t>(static_cast<const char*>(end) - bytes_.data()) + 1);
      if (*got == 0) break;
    }
    return Give(filled_);
  }

 private:
  static std::ptrdiff_t At(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

  std::string_view Give(std::size_t size) {
    given_ = size;
    return {bytes_.data(), size};
  }

  int descriptor_;
  std::string bytes_;
  std::size_t filled_ = 0;
  std::size_t given_ = 0;  ///< bytes at the start that the last block had
};

/// The same as ReadLeadingNumber. Sets `isUnusual` if the text is no number as a whole.
double SlowValueOf(std::string_view text, bool& isUnusual) {
  if (const auto whole = ReadWholeNumber(text)) return *whole;
  isUnusual = true;
  return ReadLeadingNumber(text);
}

/// The same, and most often as fast as ReadLeadingNumber.
inline double ValueOf(std::string_view text, bool& isUnusual) {
  const char* const end = text.data() + text.size();
  const bool isNegative = text.starts_with('-');
  const PlainNumber number = ReadPlainNumber(text.data() + (isNegative ? 1 : 0), end);
  if (number.end != end || number.count == 0 || !number.IsExact()) {
    return SlowValueOf(text, isUnusual);
  }
  return isNegative ? -number.Value() : number.Value();
}

/// Sums rows up and looks for unusual lines, block by block.
class Reading {
 public:
  explicit Reading(DataKind kind)
      : summary_(kind),
        lines_(kind.shape),
        reader_(
            kind.shape, [this](std::span<const DataRow> rows) { return summary_.Add(rows); },
            Mistakes::Refused) {}

  std::optional<DataFault> Read(std::string_view block) {
    const UnusualLines::Place start = Place();
    const auto fault = reader_.Read(block);
    const bool isSummaryUnusual = summary_.TakeUnusual();
    const bool isUnusual = reader_.TakeUnusual() || isSummaryUnusual || fault ||
                           reader_.Field() != 0 || !block.ends_with('\n');
    if (isUnusual || lines_.IsWithinLine()) lines_.Read(block, start);
    return fault;
  }

  std::optional<DataFault> Finish() {
    const bool isOnly = summary_.Rows() == 0;
    lines_.Finish(Place(), isOnly ? UnusualLines::LastRow::Kept : UnusualLines::LastRow::LeftOut);
    return reader_.Finish();
  }

  DataSums Sums() const { return {summary_, lines_.Remarks(), {}}; }
  /// After a fault, what stands behind it was not read.
  DataSums Failed(std::u16string why, std::uint64_t line) const {
    DataSums failed{summary_, lines_.Remarks(), std::move(why)};
    std::vector<Remark>& remarks = failed.remarks;
    remarks.erase(std::find_if(remarks.begin(), remarks.end(),
                               [line](const Remark& remark) { return remark.line > line; }),
                  remarks.end());
    return failed;
  }

 private:
  UnusualLines::Place Place() const { return {reader_.Line(), reader_.Field()}; }

  Summary summary_;
  UnusualLines lines_;
  DataReader reader_;
};

}  // namespace

TakenRows Summary::Add(std::span<const DataRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const DataRow& row = rows[i];
    const std::int32_t count = row.count.value_or(0);
    const std::int64_t total = std::int64_t{total_} + count;
    if (!IsInt32(total)) return {i, DataRefusal::TotalOutOfRange};
    total_ = static_cast<std::int32_t>(total);
    ++rows_;
    const double x = ValueOf(row.values[0], isUnusual_);
    if (shape_ == DataShape::OneVariable) {
      x_.Add(x, count);
    } else {
      sums_.Add(x, ValueOf(row.values[1], isUnusual_), count);
    }
  }
  return {rows.size(), std::nullopt};
}

DataSums SumUp(int descriptor, DataKind kind) {
  LineBlocks blocks(descriptor);
  Reading reading(kind);
  while (true) {
    const auto block = blocks.Next();
    if (!block) return reading.Failed(WhyUnreadable(block.error()), UINT64_MAX);
    const auto fault = block->empty() ? reading.Finish() : reading.Read(*block);
    if (fault) return reading.Failed(ReasonOf(fault->refusal, fault->line), fault->line);
    if (block->empty()) return reading.Sums();
  }
}

}  // namespace kav
