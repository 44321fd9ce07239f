#include "line/history_walk.h"

#include <algorithm>

namespace kav {
namespace {

ExpressionLine WithCaretAt(std::size_t caret, const std::u16string& text) {
  ExpressionLine line;
  line.Set(text, {caret, caret});
  return line;
}

/// Whether Up would not move the caret any further within the line, or the line is about to be
/// replaced as a whole.
bool IsAtAnEnd(const ExpressionLine& line) {
  const auto [from, to] = line.Selected();
  const auto [start, end] = std::minmax(from, to);
  const bool isAll = start == 0 && end == line.Text().size();
  return isAll || (start == end && (start == 0 || end == line.Text().size()));
}

}  // namespace

bool HistoryWalk::IsUnderWay(const ExpressionLine& line) const {
  return place_ < lines_.size() && lines_[place_] == line.Text();
}

ExpressionLine HistoryWalk::Up(const ExpressionLine& line, const std::function<Lines()>& lines) {
  if (!IsAtAnEnd(line)) return WithCaretAt(0, line.Text());
  if (!IsUnderWay(line)) {
    lines_ = lines();
    place_ = lines_.size();
    lines_.push_back(line.Text());
  }
  // The line that was just evaluated is the newest one, and would seem not to come.
  std::size_t earlier = place_;
  while (earlier > 0 && lines_[earlier - 1] == line.Text()) --earlier;
  if (earlier == 0) return line;
  place_ = earlier - 1;
  return WithCaretAt(lines_[place_].size(), lines_[place_]);
}

std::optional<ExpressionLine> HistoryWalk::Down(const ExpressionLine& line) {
  if (!IsUnderWay(line) || place_ + 1 == lines_.size()) return std::nullopt;
  const std::size_t unfinished = lines_.size() - 1;
  ++place_;
  // A step between equal lines would seem to do nothing.
  while (place_ < unfinished && lines_[place_ + 1] == lines_[place_]) ++place_;
  const ExpressionLine later = WithCaretAt(lines_[place_].size(), lines_[place_]);
  if (place_ == unfinished) End();
  return later;
}

HistoryWalk::Lines TypedLines(const History& history) {
  HistoryWalk::Lines lines;
  lines.reserve(history.Entries().size());
  for (const std::u16string& entry : history.Entries()) {
    if (!entry.empty() && !entry.starts_with(u'=')) lines.push_back(entry);
  }
  return lines;
}

}  // namespace kav
