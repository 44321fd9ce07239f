#include "store/past_record.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "common/number_text.h"

namespace kav {
namespace {

constexpr char kBetween = '\t';
constexpr char kEscape = '\\';

struct OriginLetter {
  PastOrigin origin;
  char letter;
};
constexpr std::array kOrigins{OriginLetter{PastOrigin::Scientific, 'S'},
                              OriginLetter{PastOrigin::Prompt, 'P'},
                              OriginLetter{PastOrigin::Matrix, 'M'}};

/// A character that has a meaning in the file, and the letter behind a backslash that stands for
/// it.
struct Escaped {
  char character;
  char letter;
};
constexpr std::array kEscaped{Escaped{kEscape, kEscape}, Escaped{kBetween, 't'}, Escaped{'\n', 'n'},
                              Escaped{'\r', 'r'}};

constexpr std::int32_t kFirstBase = 1;
constexpr std::int32_t kLastBase = 4;

void AppendField(std::string& out, std::string_view text) {
  for (const char c : text) {
    const auto* row = std::find_if(kEscaped.begin(), kEscaped.end(),
                                   [c](const Escaped& escaped) { return escaped.character == c; });
    if (row == kEscaped.end()) {
      out += c;
    } else {
      out.append({kEscape, row->letter});
    }
  }
}

std::string FieldText(std::string_view field) {
  std::string text;
  text.reserve(field.size());
  for (std::size_t i = 0; i < field.size(); ++i) {
    char c = field[i];
    if (c == kEscape && i + 1 < field.size()) {
      const char letter = field[++i];
      const auto* row =
          std::find_if(kEscaped.begin(), kEscaped.end(),
                       [letter](const Escaped& escaped) { return escaped.letter == letter; });
      c = row == kEscaped.end() ? letter : row->character;
    }
    text += c;
  }
  return Narrow(Widen(text));
}

/// Takes the first field off `record`, and the tab behind it; nullopt if there is no tab.
std::optional<std::string_view> TakeField(std::string_view& record) {
  const std::size_t end = record.find(kBetween);
  if (end == record.npos) return std::nullopt;
  const std::string_view field = record.substr(0, end);
  record.remove_prefix(end + 1);
  return field;
}

/// Reads the fields before the texts; whether they are sound.
bool ReadKind(PastLine& past, std::string_view id, std::string_view origin, std::string_view base) {
  const auto number = ReadInteger<std::int64_t>(id);
  const auto baseNumber = ReadInteger<std::int32_t>(base);
  const auto* row = std::find_if(kOrigins.begin(), kOrigins.end(), [&](const OriginLetter& letter) {
    return origin == std::string_view(&letter.letter, 1);
  });
  if (!number || *number <= 0 || row == kOrigins.end()) return false;
  if (!baseNumber || *baseNumber < kFirstBase || *baseNumber > kLastBase) return false;
  past.id = *number;
  past.origin = row->origin;
  past.base = *baseNumber;
  return true;
}

}  // namespace

std::string RecordOf(const PastLine& past) {
  const auto* row = std::find_if(kOrigins.begin(), kOrigins.end(), [&past](const OriginLetter& o) {
    return o.origin == past.origin;
  });
  std::string record = std::to_string(past.id);
  record.append({kBetween, row->letter, kBetween});
  record.append(std::to_string(past.base)) += kBetween;
  AppendField(record, past.line);
  record += kBetween;
  AppendField(record, past.answer);
  return record += '\n';
}

std::optional<PastLine> ReadRecord(std::string_view record) {
  const auto id = TakeField(record);
  const auto origin = id ? TakeField(record) : std::nullopt;
  const auto base = origin ? TakeField(record) : std::nullopt;
  const auto line = base ? TakeField(record) : std::nullopt;
  PastLine past;
  if (!line || !ReadKind(past, *id, *origin, *base)) return std::nullopt;
  // A field that takes more than its text could with every character escaped needs no reading.
  if (line->size() > 2 * PastLines::kLongestLine || record.size() > 2 * PastLines::kLongestAnswer) {
    return std::nullopt;
  }
  past.line = FieldText(*line);
  // Another tab is that of an end that was put behind a part of an answer.
  if (record.find(kBetween) == record.npos) past.answer = FieldText(record);
  if (past.line.empty() || past.line.size() > PastLines::kLongestLine) return std::nullopt;
  if (past.answer.size() > PastLines::kLongestAnswer) return std::nullopt;
  return past;
}

std::vector<PastLine> ReadRecords(std::string_view text) {
  std::vector<PastLine> lines;
  std::array<std::size_t, 2> counts{};  // of the rooms
  bool isEnded = text.ends_with('\n');
  while (!text.empty() && std::min(counts[0], counts[1]) < PastLines::kCapacity) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    const std::size_t end = text.rfind('\n');
    const std::size_t begin = end == text.npos ? 0 : end + 1;
    if (auto past = ReadRecord(text.substr(begin))) {
      // A part of an answer is another number.
      if (!isEnded) past->answer.clear();
      std::size_t& count = counts[static_cast<std::size_t>(RoomOf(past->origin))];
      if (count < PastLines::kCapacity) {
        ++count;
        lines.push_back(*std::move(past));  // NOLINT: how many there are is not known
      }
    }
    text = text.substr(0, begin);
    isEnded = true;
  }
  std::reverse(lines.begin(), lines.end());
  return lines;
}

std::string_view MissingEnd(std::string_view text) {
  if (text.empty() || text.ends_with('\n')) return {};
  // Without its line, a part of a record is passed over as it is: a tab could complete it.
  return ReadRecord(text.substr(text.rfind('\n') + 1)) ? "\t\n" : "\n";
}

std::string RecordsOf(const std::vector<PastLine>& lines) {
  std::string text;
  for (const PastLine& past : lines) text += RecordOf(past);
  return text;
}

}  // namespace kav
