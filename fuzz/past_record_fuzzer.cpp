// History files of any content. They are read as a second reader, line by line from the first on,
// reads them; what is read would be kept, and is the same when it is written and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "settings/past_lines.h"
#include "store/past_record.h"

namespace {

using kav::PastLine;
using kav::PastLines;
using kav::PastRoom;

void Check(bool holds) {
  if (!holds) std::abort();
}

bool IsUtf8(const std::string& text) {
  return kav::Narrow(kav::Widen(text)) == text;
}

void CheckLine(const PastLine& past) {
  Check(past.id > 0 && past.base >= 1 && past.base <= 4);
  Check(!past.line.empty() && past.line.size() <= PastLines::kLongestLine);
  Check(past.answer.size() <= PastLines::kLongestAnswer);
  Check(IsUtf8(past.line) && IsUtf8(past.answer));
  const std::string record = kav::RecordOf(past);
  Check(std::count(record.begin(), record.end(), '\n') == 1 && record.back() == '\n');
  Check(kav::ReadRecord(std::string_view(record).substr(0, record.size() - 1)) == past);
}

/// All lines of `room` in `text`, from the first on; the newest of them, if they are too many.
std::vector<PastLine> ReadForward(std::string_view text, PastRoom room) {
  std::vector<PastLine> lines;
  for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n')) {
    const auto past = kav::ReadRecord(text.substr(0, end));
    if (past && kav::RoomOf(past->origin) == room) lines.push_back(*past);
    text.remove_prefix(end + 1);
  }
  // A process may have been killed while it wrote the answer: a part of that is another number.
  auto last = kav::ReadRecord(text);
  if (last && kav::RoomOf(last->origin) == room) {
    last->answer.clear();
    lines.push_back(*last);
  }
  const std::size_t kept = std::min(lines.size(), PastLines::kCapacity);
  return {lines.end() - static_cast<std::ptrdiff_t>(kept), lines.end()};
}

std::vector<PastLine> Of(PastRoom room, const std::vector<PastLine>& lines) {
  std::vector<PastLine> found;
  for (const PastLine& past : lines) {
    if (kav::RoomOf(past.origin) == room) found.push_back(past);
  }
  return found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::vector<PastLine> lines = kav::ReadRecords(text);
  for (const PastLine& past : lines) CheckLine(past);
  for (const PastRoom room : {PastRoom::Calculator, PastRoom::Matrix}) {
    Check(Of(room, lines) == ReadForward(text, room));
  }
  Check(kav::ReadRecords(kav::RecordsOf(lines)) == lines);
  return 0;
}
