// Reads rows from the bytes of a file, which come in blocks of any size.
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

/// Why reading ended before the end of the file, and in which line.
struct DataFault {
  DataRefusal refusal;
  std::uint64_t line;  ///< counted from 1
};

/// What happens to what only a mistake puts into a file.
enum class Mistakes {
  /// A count is taken modulo 2^32, and read on to its end however long it is. There may be any
  /// number of characters between two numbers.
  Taken,
  /// A count beyond 32 bits is a fault, and so are a count of more than DataList::kLongestValue
  /// characters and more than DataReader::kLongestGap characters without a number.
  Refused,
};

/// The characters that numbers in files consist of: digits and '.', 'e', '+', '-'.
bool IsNumberCharacter(char c);

/// Tokens consist of number characters; all other characters separate them. A row is its values and
/// then its count. A count is the number at the start of the token's first 30 characters,
/// truncated. A token at the end of the file with no separator behind it is ignored. The memory in
/// use does not grow with the file.
class DataReader {
 public:
  /// The characters of a count that are read.
  static constexpr std::size_t kCountLength = 30;
  /// In bytes; about so much, since blocks are looked at as a whole.
  static constexpr std::size_t kLongestGap = std::size_t{1} << 20U;

  /// Gets some rows at once, whose texts are valid during the call. A refusal ends the reading.
  using RowsTaker = std::function<TakenRows(std::span<const DataRow>)>;

  DataReader(DataShape shape, RowsTaker take, Mistakes mistakes = Mistakes::Taken);
  /// `take` gets the rows one by one and answers std::optional<DataRefusal>.
  template <std::invocable<const DataRow&> RowTaker>
  DataReader(DataShape shape, RowTaker take, Mistakes mistakes = Mistakes::Taken)
      : DataReader(
            shape,
            RowsTaker([take = std::move(take)](std::span<const DataRow> rows) mutable -> TakenRows {
              for (std::size_t i = 0; i < rows.size(); ++i) {
                if (auto refusal = take(rows[i])) return {i, refusal};
              }
              return {rows.size(), std::nullopt};
            }),
            mistakes) {}
  DataReader(const DataReader&) = delete;
  DataReader& operator=(const DataReader&) = delete;

  /// Takes the next bytes. Nothing may be called after a fault.
  std::optional<DataFault> Read(std::string_view block);

  /// Takes the end of the file. An unfinished row is taken only if it is the first.
  std::optional<DataFault> Finish();

  /// The line that the next byte belongs to, counted from 1.
  std::uint64_t Line() const { return line_; }
  /// The field of a row that the next number belongs to, from 0.
  std::size_t Field() const { return field_; }
  /// Whether anything was unusual since this was last asked: a character that neither belongs to a
  /// number nor is a blank, a TAB, a semicolon or a line end; a line that is not one row; a count
  /// that is no whole number from 1 on.
  bool TakeUnusual() { return std::exchange(unusual_, 0) != 0; }

 private:
  /// Few enough to stay in the processor's cache until they are taken.
  static constexpr std::size_t kRowsAtOnce = 64;

  std::optional<DataFault> ReadTokens(std::string_view block);
  std::optional<DataFault> ReadWholeTokens(const char* at, const char* end);
  bool ExpectsCount() const { return field_ == variables_; }
  std::optional<DataFault> Carry(std::string_view piece);
  std::optional<DataFault> TakeToken(std::string_view token);
  std::optional<DataFault> TakeCount(std::string_view token);
  std::optional<DataFault> TakeCarried();
  std::optional<DataFault> HandRowsOver();
  std::optional<DataFault> Refuse(DataRefusal refusal);
  bool IsGapTooLong(std::string_view block);
  void KeepValues();

  RowsTaker take_;
  std::size_t variables_;
  Mistakes mistakes_;
  std::size_t field_ = 0;  ///< the next field of the row that is being read, from 0
  std::size_t whole_ = 0;  ///< rows that wait to be taken; the one that is being read follows them
  std::array<DataRow, kRowsAtOnce> rows_;
  std::array<std::uint64_t, kRowsAtOnce> lines_{};  ///< in which the rows end
  std::array<std::string, kMostVariables> kept_;    ///< values whose block is gone
  std::string carried_;                             ///< a token whose end is in a later block
  std::size_t carriedLength_ = 0;                   ///< with what is not read of a long count
  std::size_t gap_ = 0;                             ///< bytes of blocks without a number
  bool hasRows_ = false;
  std::uint64_t unusual_ = 0;  ///< not 0 if anything was; a number, since gathering it is faster
  std::uint64_t line_ = 1;
  std::uint64_t nextLine_ = 1;  ///< in which the next row stands if each line is a row
};

}  // namespace kav
