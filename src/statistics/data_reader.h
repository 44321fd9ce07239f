// Rows from the bytes of a file, however they are cut into blocks.
#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "statistics/data_list.h"

namespace kav {

/// Where and why reading ended before its time.
struct DataFault {
  DataRefusal refusal;
  std::uint64_t line;  ///< counted from 1
};

/// Takes tokens of the digits and '.', 'e', '+', '-' and whatever stands between them: for each row
/// its values and its count in turn. A count is the number that opens its first 30 characters,
/// truncated, modulo 2^32. A token that nothing ends is none. Its memory does not grow.
class DataReader {
 public:
  /// Gets some rows at once; what they view lasts for the call. A refusal ends the reading.
  using RowsTaker = std::function<TakenRows(std::span<const DataRow>)>;

  DataReader(DataShape shape, RowsTaker take);
  /// `take` gets them one by one and answers std::optional<DataRefusal>.
  template <std::invocable<const DataRow&> RowTaker>
  DataReader(DataShape shape, RowTaker take)
      : DataReader(
            shape,
            RowsTaker([take = std::move(take)](std::span<const DataRow> rows) mutable -> TakenRows {
              for (std::size_t i = 0; i < rows.size(); ++i) {
                if (auto refusal = take(rows[i])) return {i, refusal};
              }
              return {rows.size(), std::nullopt};
            })) {}
  DataReader(const DataReader&) = delete;
  DataReader& operator=(const DataReader&) = delete;

  /// Takes the next bytes. After a fault there is nothing more to be called.
  std::optional<DataFault> Read(std::string_view block);

  /// At the end of the file: a row without a count is one only where it is the first.
  std::optional<DataFault> Finish();

 private:
  /// Few enough to stay in the fastest memory until they are taken.
  static constexpr std::size_t kRowsAtOnce = 64;

  std::optional<DataFault> ReadTokens(std::string_view block);
  std::optional<DataFault> ReadWholeTokens(const char* at, const char* end);
  bool ExpectsCount() const { return field_ == variables_; }
  std::optional<DataFault> Carry(std::string_view piece);
  std::optional<DataFault> TakeToken(std::string_view token);
  std::optional<DataFault> TakeCarried();
  std::optional<DataFault> HandRowsOver();
  std::optional<DataFault> RefuseValue();
  void KeepValues();

  RowsTaker take_;
  std::size_t variables_;
  std::size_t field_ = 0;  ///< of the row that is being read, from 0
  std::size_t whole_ = 0;  ///< rows that wait to be taken; behind them the one that is being read
  std::array<DataRow, kRowsAtOnce> rows_;
  std::array<std::uint64_t, kRowsAtOnce> lines_{};  ///< in which they end
  std::array<std::string, kMostVariables> kept_;    ///< values whose block is gone
  std::string carried_;                             ///< a token whose end is in another block
  bool hasRows_ = false;
  std::uint64_t line_ = 1;
};

}  // namespace kav
