#include "statistics/data_list.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "common/number_text.h"

namespace kav {

std::string_view DataList::ValueText(std::size_t row, std::size_t variable) const {
  return TextOf(rows_[row], variable);
}

double DataList::Value(std::size_t row, std::size_t variable) const {
  return ReadLeadingNumber(TextOf(rows_[row], variable));
}

std::string DataList::CountText(std::size_t row) const {
  return IsComplete(rows_[row]) ? PrintInteger(Count(row)) : std::string();
}

/// Whether the texts of `row` fit, and its count instead of `replacedCount`.
inline std::optional<DataRefusal> DataList::Check(const DataRow& row,
                                                  std::int64_t replacedCount) const {
  for (std::size_t i = 0; i < Variables(); ++i) {
    if (row.values[i].size() > kLongestValue) return DataRefusal::ValueTooLong;
  }
  if (IsInt32(total_ - replacedCount + row.count.value_or(0))) return std::nullopt;
  return DataRefusal::TotalOutOfRange;
}

inline std::optional<DataRefusal> DataList::CheckNew(const DataRow& row) const {
  if (RowCount() == kMostRows) return DataRefusal::TooManyRows;
  return Check(row, 0);
}

/// Writes `row` into the StoredRow that `makeRow` answers, once there is room for its texts. The
/// row is written in its place: to copy it there would read it in wider pieces than it was written
/// in, and the processor would wait for the writes.
template <class MakeRow>
inline std::optional<DataRefusal> DataList::Store(const DataRow& row, MakeRow makeRow) {
  const std::string_view first = row.values[0];
  const std::string_view second = Variables() == 2 ? row.values[1] : std::string_view();
  const std::int32_t count = row.count.value_or(StoredRow::kNoCount);
  const bool isShort = (first.size() | second.size()) <= StoredRow::kLongest &&
                       count == static_cast<std::int16_t>(count) &&
                       (count != StoredRow::kNoCount || !row.count);
  try {
    const std::size_t room = first.size() + second.size() + (isShort ? 0 : sizeof(RowFacts));
    if (!texts_.MakeRoom(room)) return DataRefusal::NoMemory;
    StoredRow& stored = makeRow();
    if (isShort) [[likely]] {
      stored.place = texts_.PutInRoom(first, second);
      stored.lengths[0] = static_cast<std::uint8_t>(first.size());
      stored.lengths[1] = static_cast<std::uint8_t>(second.size());
      stored.count = static_cast<std::int16_t>(count);
    } else {
      StoreElsewhere(stored, row, second);
    }
    total_ += row.count ? count : 0;
    completeRows_ += row.count ? 1U : 0U;
    textLength_ += room;
    return std::nullopt;
  } catch (const std::bad_alloc&) {
    return DataRefusal::NoMemory;
  }
}

/// Writes facts that few bytes do not hold, and the texts behind them, for which there is room.
void DataList::StoreElsewhere(StoredRow& stored, const DataRow& row, std::string_view second) {
  RowFacts facts;
  facts.lengths[0] = static_cast<std::uint16_t>(row.values[0].size());
  facts.lengths[1] =
      static_cast<std::uint16_t>(second.size() | (row.count ? 0U : RowFacts::kNoCount));
  facts.count = row.count.value_or(0);
  std::array<char, sizeof facts> bytes{};
  std::memcpy(bytes.data(), &facts, sizeof facts);
  stored.place = texts_.PutInRoom({bytes.data(), bytes.size()}, {});
  texts_.PutInRoom(row.values[0], second);
  stored.lengths = {StoredRow::kElsewhere, 0};
  stored.count = 0;
}

void DataList::Untally(const StoredRow& row) {
  total_ -= CountOf(row);
  completeRows_ -= IsComplete(row) ? 1U : 0U;
  textLength_ -= HeldOf(row).size();
}

std::optional<DataRefusal> DataList::InsertTop(const DataRow& row) {
  if (auto refusal = CheckNew(row)) return refusal;
  return Store(row, [this]() -> StoredRow& { return rows_.emplace_front(); });
}

std::optional<DataRefusal> DataList::Insert(std::size_t row, const DataRow& what) {
  if (auto refusal = CheckNew(what)) return refusal;
  return Store(what, [this, row]() -> StoredRow& {
    return *rows_.emplace(rows_.begin() + static_cast<std::ptrdiff_t>(row));
  });
}

inline std::optional<DataRefusal> DataList::AppendOne(const DataRow& row) {
  if (auto refusal = CheckNew(row)) return refusal;
  return Store(row, [this]() -> StoredRow& { return rows_.emplace_back(); });
}

TakenRows DataList::AppendRows(std::span<const DataRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (auto refusal = AppendOne(rows[i])) return {i, refusal};
  }
  return {rows.size(), std::nullopt};
}

std::optional<DataRefusal> DataList::InsertTop(const DataList& rows) {
  if (rows.RowCount() > kMostRows - RowCount()) return DataRefusal::TooManyRows;
  if (!IsInt32(std::int64_t{total_} + rows.total_)) return DataRefusal::TotalOutOfRange;
  const auto end = texts_.End();
  std::optional<DataRefusal> refusal;
  try {
    refusal = InsertCopies(rows);
  } catch (const std::bad_alloc&) {
    refusal = DataRefusal::NoMemory;
  }
  if (refusal) texts_.CutTo(end);
  return refusal;
}

std::optional<DataRefusal> DataList::InsertCopies(const DataList& rows) {
  std::vector<StoredRow> copies(rows.rows_.begin(), rows.rows_.end());
  for (StoredRow& copy : copies) {
    const auto place = texts_.Put(rows.HeldOf(copy), {});
    if (!place) return DataRefusal::NoMemory;
    copy.place = *place;
  }
  rows_.insert(rows_.begin(), copies.begin(), copies.end());
  total_ += rows.total_;
  completeRows_ += rows.completeRows_;
  textLength_ += rows.textLength_;
  return std::nullopt;
}

std::optional<DataRefusal> DataList::Rewrite(std::size_t row, const DataRow& with) {
  if (auto refusal = Check(with, Count(row))) return refusal;
  const auto emptied = [this, row]() -> StoredRow& {
    Untally(rows_[row]);
    return rows_[row];
  };
  if (auto refusal = Store(with, emptied)) return refusal;
  CompactTexts();
  return std::nullopt;
}

std::optional<DataRefusal> DataList::CheckErase(std::size_t row) const {
  if (IsInt32(std::int64_t{total_} - Count(row))) return std::nullopt;
  return DataRefusal::TotalOutOfRange;
}

std::optional<DataRefusal> DataList::Erase(std::size_t row) {
  if (auto refusal = CheckErase(row)) return refusal;
  Untally(rows_[row]);
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
  CompactTexts();
  return std::nullopt;
}

Expected<DataList, DataRefusal> DataList::TakeTop(std::size_t rows) {
  DataList top(shape_);
  for (std::size_t i = 0; i < rows; ++i) {
    DataRow row{{ValueText(i, 0), ValueText(i, 1)}, std::nullopt};
    if (IsComplete(rows_[i])) row.count = Count(i);
    if (const auto refusal = top.Append(row)) return *refusal;
  }
  if (!IsInt32(std::int64_t{total_} - top.total_)) return DataRefusal::TotalOutOfRange;
  for (std::size_t i = 0; i < rows; ++i) Untally(rows_[i]);
  rows_.erase(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(rows));
  CompactTexts();
  return top;
}

/// Copies the texts of all rows into a new arena once more than half of the old one is waste.
/// Without the memory for that, all stays as it is.
void DataList::CompactTexts() {
  if (texts_.Size() < TextArena::kBlockSize || textLength_ > texts_.Size() / 2) return;
  try {
    TextArena texts;
    std::vector<std::uint32_t> places;
    places.reserve(rows_.size());
    for (const StoredRow& row : rows_) {
      const auto place = texts.Put(HeldOf(row), {});
      if (!place) return;
      places.push_back(*place);
    }
    for (std::size_t i = 0; i < places.size(); ++i) rows_[i].place = places[i];
    texts_ = std::move(texts);
  } catch (const std::bad_alloc&) {
    return;
  }
}

double DataList::Key(const StoredRow& row, std::size_t column) const {
  return column < Variables() ? ReadLeadingNumber(TextOf(row, column)) : CountOf(row);
}

template <class Before>
void DataList::SortBy(std::size_t column, Before before) {
  struct KeyedRow {
    double key;
    StoredRow row;
  };
  try {
    std::vector<KeyedRow> keyed;
    keyed.reserve(rows_.size());
    for (const StoredRow& row : rows_) keyed.push_back({Key(row, column), row});
    std::sort(keyed.begin(), keyed.end(),
              [before](const KeyedRow& a, const KeyedRow& b) { return before(a.key, b.key); });
    std::transform(keyed.begin(), keyed.end(), rows_.begin(),
                   [](const KeyedRow& sorted) { return sorted.row; });
  } catch (const std::bad_alloc&) {
    // Slower, because each comparison reads two texts, but it needs no memory.
    std::sort(rows_.begin(), rows_.end(), [&](const StoredRow& a, const StoredRow& b) {
      return before(Key(a, column), Key(b, column));
    });
  }
}

void DataList::Sort(std::size_t column, Direction direction) {
  if (direction == Direction::Ascending) return SortBy(column, std::less<>());
  SortBy(column, std::greater<>());
}

void DropRows(DataList& list) {
  // Rows whose memory is worth the time to give it back.
  constexpr std::size_t kLongList = 50'000;
  const bool wasLong = list.RowCount() >= kLongList;
  list = DataList(list.Shape());
  if (wasLong) GiveFreedMemoryBack();
}

void GiveFreedMemoryBack() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

}  // namespace kav
