// What the user is told about files of data and about pasted rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "settings/file_error_texts.h"
#include "statistics/data_list.h"
#include "statistics/data_reader.h"
#include "statistics/statistics_texts.h"

namespace kav {

// Files of data. `reason` is a clause without a point at its end.
inline std::u16string DataCannotBeLoaded(std::u16string_view path, std::u16string_view reason) {
  return FileFailure(u"The data cannot be loaded from ", path, reason);
}
inline std::u16string DataCannotBeSaved(std::u16string_view path, std::u16string_view reason) {
  return FileFailure(u"The data cannot be saved in ", path, reason);
}

// Reasons that only data files have; FileError has the others.
inline constexpr std::u16string_view kFileHasShrunk =
    u"the file became shorter while it was read; load it again when nothing writes to it";
inline constexpr std::u16string_view kNoMemoryToSave =
    u"there is not enough memory; close other programs";
inline constexpr std::u16string_view kNoMemoryForRows =
    u"there is not enough memory for its rows; close other programs or split the data into parts";

/// The reason for which a row of a file or of pasted text is not taken. Lines are numbered from 1.
inline std::u16string ReasonOf(DataRefusal refusal, std::uint64_t line) {
  const std::u16string inLine = u"in line " + IntegerText(static_cast<std::int64_t>(line));
  switch (refusal) {
    case DataRefusal::TotalOutOfRange:
      return (inLine + u" the total of the counts goes beyond ")
          .append(kTotalBounds)
          .append(u"; split the data into parts");
    case DataRefusal::TooManyRows:
      return inLine + u" begins a row beyond the " + MostRowsText() +
             u" that a list holds; split the data into parts";
    case DataRefusal::ValueTooLong:
      return inLine + u" is a number of more than " + LongestValueText() +
             u" characters; check that the file holds data";
    case DataRefusal::CountOutOfRange:
      return (inLine + u" is a count beyond ").append(kTotalBounds).append(u"; check the count");
    case DataRefusal::NoNumber:
      return inLine + u" are more than " +
             IntegerText(static_cast<std::int64_t>(DataReader::kLongestGap)) +
             u" characters without a number; check that the file holds data";
    case DataRefusal::NoMemory:
      break;
  }
  return std::u16string(kNoMemoryForRows);
}

// Pasted text.
inline std::u16string RowsCannotBePasted(std::u16string_view reason) {
  return std::u16string(u"The rows cannot be pasted: ").append(reason).append(u".");
}
inline constexpr std::u16string_view kPastedTextIsTooLong =
    u"the text is too long; copy it in several parts";

// What is wrong with a line; follows "line 2".
/// `cell` is the text in the place of the number, empty if there is none.
inline std::u16string LacksNumber(std::u16string_view heading, std::u16string_view cell) {
  std::u16string text = u" has no number in " + std::u16string(heading);
  if (!cell.empty()) text.append(u" (\"").append(cell).append(u"\")");
  return text;
}
inline std::u16string HasBadCount(std::u16string_view cell) {
  return (u" has a count that is no " + WholeCount()).append(u" (\"").append(cell).append(u"\")");
}
inline constexpr std::u16string_view kHasTooManyColumns = u" has too many columns";

/// `faults` are what is wrong with the first lines that were not taken, such as "line 2 has too
/// many columns".
inline std::u16string LinesWereNotTaken(std::size_t refused, std::size_t lines,
                                        std::span<const std::u16string> faults) {
  const auto number = [](std::size_t count) {
    return IntegerText(static_cast<std::int64_t>(count));
  };
  std::u16string text = number(refused) + u" of " + number(lines) +
                        (lines == 1 ? u" line" : u" lines") +
                        (refused == 1 ? u" was not taken: " : u" were not taken: ");
  for (std::size_t i = 0; i < faults.size(); ++i) {
    if (i > 0) text += u", ";
    text += faults[i];
  }
  if (refused > faults.size()) text += u", and " + number(refused - faults.size()) + u" more";
  return text + u".";
}

}  // namespace kav
