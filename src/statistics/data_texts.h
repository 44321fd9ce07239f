// What the user is told about files of data and about pasted rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "settings/file_error_texts.h"
#include "statistics/data_list.h"

namespace kav {

// Files of data. `reason` is a clause without a point at its end.
inline std::u16string DataCannotBeLoaded(std::u16string_view path, std::u16string_view reason) {
  return std::u16string(u"The data cannot be loaded from ")
      .append(path)
      .append(u": ")
      .append(reason)
      .append(u".");
}
inline std::u16string DataCannotBeSaved(std::u16string_view path, std::u16string_view reason) {
  return std::u16string(u"The data cannot be saved in ")
      .append(path)
      .append(u": ")
      .append(reason)
      .append(u".");
}

/// Why a file cannot be read, and what to do: a reason.
inline std::u16string_view ReasonOfReading(FileError error) {
  switch (error) {
    case FileError::NotThere:
      return u"there is no such file; check its name";
    case FileError::BadPath:
      return u"a folder on the way there is none; check the path";
    case FileError::NotAFile:
      return u"a folder or a device has this name; choose a file";
    case FileError::NoPermission:
      return u"there is no permission; check who owns the file, and who may read it";
    default:
      return u"the disk reports an error; check the disk";
  }
}
inline constexpr std::u16string_view kFileHasShrunk =
    u"the file became shorter while it was read; load it again when nothing writes to it";
inline constexpr std::u16string_view kNoMemoryToSave =
    u"there is not enough memory; close other programs";

inline std::u16string NumberInText(std::uint64_t number) {
  return Widen(PrintInteger(static_cast<std::int64_t>(number)));
}

/// Why a row of a file is not taken, and what to do: a reason. Lines count from 1.
inline std::u16string ReasonOf(DataRefusal refusal, std::uint64_t line) {
  const std::u16string inLine = u"in line " + NumberInText(line);
  switch (refusal) {
    case DataRefusal::TotalOutOfRange:
      return inLine +
             u" the total of the counts goes beyond -2147483648 to 2147483647; split the "
             u"data into parts";
    case DataRefusal::TooManyRows:
      return inLine + u" begins a row beyond the " + NumberInText(DataList::kMostRows) +
             u" that a list holds; split the data into parts";
    case DataRefusal::ValueTooLong:
      return inLine + u" is a number of more than " + NumberInText(DataList::kLongestValue) +
             u" characters; check that the file holds data";
    case DataRefusal::NoMemory:
      break;
  }
  return u"there is not enough memory for its rows; close other programs or split the data into "
         u"parts";
}

// Pasted text.
inline std::u16string RowsCannotBePasted(std::u16string_view reason) {
  return std::u16string(u"The rows cannot be pasted: ").append(reason).append(u".");
}
inline constexpr std::u16string_view kPastedTextIsTooLong =
    u"the text is too long; copy it in several parts";

/// What is wrong with a line; goes on behind "line 2". `cell` is empty where there is none.
inline std::u16string LacksNumber(std::u16string_view heading, std::u16string_view cell) {
  std::u16string text = u" has no number in " + std::u16string(heading);
  if (!cell.empty()) text.append(u" (\"").append(cell).append(u"\")");
  return text;
}
inline std::u16string HasBadCount(std::u16string_view cell) {
  return std::u16string(u" has a count that is no whole number from 1 to 10000 (\"")
      .append(cell)
      .append(u"\")");
}
inline constexpr std::u16string_view kHasTooManyColumns = u" has too many columns";

/// `faults` are those of the first lines that were not taken: "line 2 has too many columns".
inline std::u16string LinesWereNotTaken(std::size_t refused, std::size_t lines,
                                        std::span<const std::u16string> faults) {
  std::u16string text = NumberInText(refused) + u" of " + NumberInText(lines) +
                        (lines == 1 ? u" line" : u" lines") +
                        (refused == 1 ? u" was not taken: " : u" were not taken: ");
  for (std::size_t i = 0; i < faults.size(); ++i) {
    if (i > 0) text += u", ";
    text += faults[i];
  }
  if (refused > faults.size()) text += u", and " + NumberInText(refused - faults.size()) + u" more";
  return text + u".";
}

}  // namespace kav
