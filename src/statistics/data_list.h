// The rows of a statistics screen: texts, counts and their total.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "statistics/data_number.h"
#include "statistics/text_arena.h"

namespace kav {

/// How many variables a row has, besides its count.
enum class DataShape { OneVariable = 1, TwoVariables = 2 };

inline constexpr std::size_t kMostVariables = 2;

/// The counts that users give rows; files may hold others.
inline constexpr std::int32_t kLeastCount = 1;
inline constexpr std::int32_t kLargestCount = 10'000;

/// A row as it is put into the list; of a list of one variable only the first value counts.
/// Values are 8-bit texts, kept as they stand. Without a count it is a row that a file left
/// unfinished: it reads as count 0.
struct DataRow {
  std::array<std::string_view, kMostVariables> values;
  std::optional<std::int32_t> count;

  /// The number that opens the text.
  double Value(std::size_t variable) const { return ReadDataNumber(values[variable]); }
};

/// Why a row was not taken; the list is as it was.
enum class DataRefusal {
  TotalOutOfRange,  ///< the total would not be a 32-bit integer
  TooManyRows,
  ValueTooLong,
  NoMemory,
};

/// How many of some rows were taken, from the first on, and why the next one was not.
struct TakenRows {
  std::size_t count;
  std::optional<DataRefusal> refusal;  ///< nullopt: that is all of them
};

/// Rows count from 0 at the top. Its memory is 12 bytes a row beside the texts.
class DataList {
 public:
  static constexpr std::size_t kMostRows = 20'000'000;
  static constexpr std::size_t kLongestValue = 30'000;  ///< characters

  explicit DataList(DataShape shape) : shape_(shape) {}

  DataShape Shape() const { return shape_; }
  std::size_t RowCount() const { return rows_.size(); }
  /// The rows that have a count.
  std::size_t CompleteRowCount() const { return completeRows_; }
  /// The sum of all counts.
  std::int32_t Total() const { return total_; }

  /// Of variable 0 (X) or 1 (Y).
  std::string_view ValueText(std::size_t row, std::size_t variable) const;
  double Value(std::size_t row, std::size_t variable) const;  ///< the number that opens the text
  std::int32_t Count(std::size_t row) const { return rows_[row].count; }
  std::string CountText(std::size_t row) const;  ///< empty where there is none

  /// Calls `use(value, count)` for a variable of each row, from the top.
  template <class Use>
  void ForEachValue(std::size_t variable, Use use) const {
    for (const StoredRow& row : rows_) use(ReadDataNumber(TextOf(row, variable)), row.count);
  }

  // What is refused changes nothing.
  std::optional<DataRefusal> InsertTop(const DataRow& row);
  std::optional<DataRefusal> Append(const DataRow& row) { return AppendRows({&row, 1}).refusal; }
  /// One by one, up to the first that is refused.
  TakenRows AppendRows(std::span<const DataRow> rows);
  std::optional<DataRefusal> Rewrite(std::size_t row, const DataRow& with);
  /// All rows of `rows`, which has the same shape, in their order above the first.
  std::optional<DataRefusal> InsertTop(const DataList& rows);
  /// Refused where the counts of the others do not make a total.
  std::optional<DataRefusal> Erase(std::size_t row);
  void Clear();

  enum class Direction { Ascending, Descending };
  /// By the numbers of a column: 0 (X), 1 (Y, or the count), 2 (the count).
  void Sort(std::size_t column, Direction direction);

 private:
  /// Set in the length of the last text where a row has no count.
  static constexpr std::uint16_t kNoCount = 0x8000;
  static_assert(kLongestValue < kNoCount);
  static_assert(kMostVariables * kLongestValue <= TextArena::kBlockSize);

  /// Where a row's texts stand, one behind the other, and how long they are.
  struct StoredRow {
    std::uint32_t place = 0;
    std::array<std::uint16_t, kMostVariables> lengths{};
    std::int32_t count = 0;

    std::size_t Length(std::size_t variable) const { return lengths[variable] & (kNoCount - 1U); }
    std::size_t TextLength() const { return Length(0) + Length(1); }
    bool IsComplete() const { return (lengths[1] & kNoCount) == 0; }
  };

  std::size_t Variables() const { return static_cast<std::size_t>(shape_); }
  double Key(const StoredRow& row, std::size_t column) const;
  std::string_view TextOf(const StoredRow& row, std::size_t variable) const {
    const std::size_t length = row.Length(variable);
    if (length == 0) return {};
    return texts_.At(row.place + (variable == 0 ? 0U : row.lengths[0]), length);
  }
  std::optional<DataRefusal> Check(const DataRow& row, std::int64_t replacedCount) const;
  std::optional<DataRefusal> CheckNew(const DataRow& row) const;
  bool Store(const DataRow& row, StoredRow& stored);
  std::optional<DataRefusal> AppendOne(const DataRow& row);
  std::optional<DataRefusal> InsertCopies(const DataList& rows);
  void Tally(const StoredRow& row);
  void Untally(const StoredRow& row);
  template <class Before>
  void SortBy(std::size_t column, Before before);
  void CompactTexts();

  DataShape shape_;
  std::int32_t total_ = 0;
  std::size_t completeRows_ = 0;
  std::size_t textLength_ = 0;  ///< of all rows; what else the texts hold is waste
  // In chunks, so that it grows at both ends without holding a row twice.
  std::deque<StoredRow> rows_;
  TextArena texts_;
};

}  // namespace kav
