// Rows as text that is copied from spreadsheets and pasted into them.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "display/number_format.h"
#include "statistics/data_list.h"
#include "statistics/work_progress.h"

namespace kav {

/// In UTF-16 units; a longer text is not read.
inline constexpr std::size_t kLongestPastedText = 400'000'000;

struct PastedRows {
  DataList rows;             ///< the good lines, each value as FormatForInsertion writes it
  std::u16string complaint;  ///< what is wrong with the bad lines; empty if there are none
};

/// Reads lines that end with LF or CR LF. Their columns are separated by TAB if the line has one,
/// else by semicolons, else by commas, else by blanks. Counts are as ReadCount takes them; a
/// missing one is 1. Empty lines are skipped.
std::variant<PastedRows, WorkFailed, WorkCancelled> ReadPastedRows(std::u16string_view text,
                                                                   DataShape shape,
                                                                   DisplayFormat format,
                                                                   const WorkProgress& progress);

/// All of `text` without blanks and line ends around it, if nothing in it separates columns or
/// lines; nullopt if it is more than one cell, or none.
std::optional<std::u16string_view> OneCellOf(std::u16string_view text);

/// The rows at `indices` as lines that end with LF, a TAB between columns.
std::u16string PrintRows(const DataList& list, std::span<const std::size_t> indices);

}  // namespace kav
