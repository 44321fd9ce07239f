// Past lines as a text file holds them: a record a line.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/past_lines.h"

namespace kav {

/// The record of `past`, with its end: five fields with tabs between them, which are the id, a
/// letter for the origin, the base, the line and the answer. "\\", "\t", "\n" and "\r" stand for a
/// backslash, a tab and line ends within a field.
std::string RecordOf(const PastLine& past);

/// What `record`, without its end, holds; nullopt if it is no record, or one of a line that is not
/// kept. Bytes that are not UTF-8 become U+FFFD. An answer with a tab in it was not written as a
/// whole, and is left out.
std::optional<PastLine> ReadRecord(std::string_view record);

/// The newest lines in `text`, at most PastLines::kCapacity of a room, the newest last. What is no
/// record is passed over. A last record without its end has no answer.
std::vector<PastLine> ReadRecords(std::string_view text);

/// What must stand behind `text` before another record may: who wrote its last one may have been
/// killed meanwhile. Empty if nothing is missing.
std::string_view MissingEnd(std::string_view text);

/// `lines` as the text that ReadRecords reads.
std::string RecordsOf(const std::vector<PastLine>& lines);

}  // namespace kav
