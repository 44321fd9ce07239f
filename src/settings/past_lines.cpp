#include "settings/past_lines.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kav {

bool SaysTheSame(const PastLine& a, const PastLine& b) {
  return a.base == b.base && a.line == b.line && a.answer == b.answer;
}

bool AddTo(std::vector<PastLine>& lines, PastLine line) {
  const bool isLong =
      line.line.size() > PastLines::kLongestLine || line.answer.size() > PastLines::kLongestAnswer;
  if (line.line.empty() || isLong) return false;
  const auto isOfRoom = [room = RoomOf(line.origin)](const PastLine& past) {
    return RoomOf(past.origin) == room;
  };
  const auto newest = std::find_if(lines.rbegin(), lines.rend(), isOfRoom);
  if (newest != lines.rend() && SaysTheSame(*newest, line)) return false;
  if (std::count_if(lines.begin(), lines.end(), isOfRoom) >=
      static_cast<std::ptrdiff_t>(PastLines::kCapacity)) {
    lines.erase(std::find_if(lines.begin(), lines.end(), isOfRoom));
  }
  lines.push_back(std::move(line));
  return true;
}

bool RemoveFrom(std::vector<PastLine>& lines, std::int64_t id) {
  return std::erase_if(lines, [id](const PastLine& past) { return past.id == id; }) > 0;
}

bool PutBackInto(std::vector<PastLine>& lines, const PastLine& line) {
  const auto next = std::find_if(lines.begin(), lines.end(),
                                 [&line](const PastLine& past) { return past.id >= line.id; });
  if (next != lines.end() && next->id == line.id) return false;
  lines.insert(next, line);
  return true;
}

bool ClearIn(std::vector<PastLine>& lines, PastRoom room) {
  return std::erase_if(lines,
                       [room](const PastLine& past) { return RoomOf(past.origin) == room; }) > 0;
}

std::vector<PastLine> MemoryPastLines::Of(PastRoom room) {
  std::vector<PastLine> found;
  std::copy_if(lines_.begin(), lines_.end(), std::back_inserter(found),
               [room](const PastLine& past) { return RoomOf(past.origin) == room; });
  return found;
}

void MemoryPastLines::Add(PastLine line) {
  line.id = lines_.empty() ? 1 : lines_.back().id + 1;
  AddTo(lines_, std::move(line));
}

}  // namespace kav
