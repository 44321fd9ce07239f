// The lines of a file of data that are read, but perhaps not as their writer meant them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "statistics/data_list.h"

namespace kav {

/// What is told about a line.
struct Remark {
  std::uint64_t line;  ///< counted from 1
  std::string text;    ///< begins with the line's number; may hold any bytes of the file
};

/// Finds the first line of each kind that is unusual: text, a comma or an upper-case E between
/// digits, another number of numbers than a row has, a count that is no whole number from 1 on, and
/// the like. Reads the file as DataReader does. Blocks without anything unusual may be left out.
class UnusualLines {
 public:
  /// Where a block begins, as the DataReader tells it.
  struct Place {
    std::uint64_t line;
    std::size_t field;
  };
  /// What became of a row at the end of the file that lacks its count.
  enum class LastRow { LeftOut, Kept };

  explicit UnusualLines(DataShape shape) : variables_(VariablesOf(shape)) {}

  /// Looks at a block, which begins at the start of a line or where the block before it ended. The
  /// block after one that ended within a line may not be left out.
  void Read(std::string_view block, Place place);
  bool IsWithinLine() const { return isWithinLine_; }

  /// Takes the end of the file, before which a row lacks all fields from `place` on; none if that
  /// is the first field.
  void Finish(Place place, LastRow lastRow);

  /// In the order of their lines.
  const std::vector<Remark>& Remarks() const { return remarks_; }

 private:
  enum class Kind {
    Mark,
    Text,
    Value,
    Comma,
    Exponent,
    Fields,
    Count,
    LastNumber,
    LastRow,
    Number
  };

  void TakeOfNumber(std::string_view piece);
  void TakeSeparator(char c);
  void EndToken();
  void JudgeToken();
  void JudgeCount();
  void EndLine();
  void JudgeLine();
  void Add(Kind kind, std::string_view text);

  std::size_t variables_;
  std::array<bool, static_cast<std::size_t>(Kind::Number)> isFound_{};
  std::vector<Remark> remarks_;

  std::uint64_t line_ = 1;
  std::size_t field_ = 0;
  bool isAtStart_ = true;
  bool isWithinLine_ = false;

  // Of this line.
  std::string start_;        ///< as much of it as is quoted
  std::size_t numbers_ = 0;  ///< how many it has so far
  bool hasText_ = false;
  bool hasComma_ = false;
  bool hasExponent_ = false;
  std::string valueRemark_;  ///< empty if all values are numbers
  std::string countRemark_;

  std::string token_;  ///< as much of the number as is looked at
  char previous_ = 0;  ///< the byte before, 0 at the start of a line
  char waiting_ = 0;   ///< a comma or an E right behind a number, if it is the byte before
};

}  // namespace kav
