// Earlier lines that the keys Up and Down put into a line.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "line/expression_line.h"
#include "line/history.h"

namespace kav {

/// A walk from the line that the user has not finished through earlier ones and back. It is under
/// way as long as the line is the one that it came to: who edits that begins a new walk with it.
class HistoryWalk {
 public:
  /// The newest last.
  using Lines = std::vector<std::u16string>;

  /// What Up makes of `line`: the caret goes to the start first. From an end of the line, or if all
  /// of it is selected, the next earlier line comes, with the caret at its end; what stands before
  /// the oldest is that line itself. `lines` is asked for when a walk begins.
  ExpressionLine Up(const ExpressionLine& line, const std::function<Lines()>& lines);

  /// What Down makes of `line`: the next later line or, behind the newest, the unfinished one.
  /// nullopt if no walk is under way.
  std::optional<ExpressionLine> Down(const ExpressionLine& line);

  /// The line is finished.
  void End() { lines_.clear(); }

 private:
  bool IsUnderWay(const ExpressionLine& line) const;

  Lines lines_;            ///< the unfinished one behind them; empty if no walk is under way
  std::size_t place_ = 0;  ///< of the line that it came to
};

/// The lines of `history` as they were typed, without their answers.
HistoryWalk::Lines TypedLines(const History& history);

}  // namespace kav
