// Rows as the text that spreadsheets copy and paste.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "display/number_format.h"
#include "statistics/data_file.h"
#include "statistics/data_list.h"

namespace kav {

/// Characters; a longer text is not read.
inline constexpr std::size_t kLongestPastedText = 400'000'000;

/// What a text holds: its good lines as rows, with the values as `format` writes them into lists,
/// and what is to be told of its bad ones; empty where there are none.
struct PastedRows {
  DataList rows;
  std::u16string complaint;
};

/// Reads lines that end with LF or CR LF: columns separated by TAB where the line has one, or else
/// by semicolons, or else by commas, or else by blanks. A missing count is 1; counts are 1 to
/// 10000. An empty line is no row and no fault.
std::variant<PastedRows, WorkFailed, WorkCancelled> ReadPastedRows(std::u16string_view text,
                                                                   DataShape shape,
                                                                   DisplayFormat format,
                                                                   const WorkProgress& progress);

/// The rows at `indices` as lines with a TAB between columns.
std::u16string PrintRows(const DataList& list, std::span<const std::size_t> indices);

}  // namespace kav
