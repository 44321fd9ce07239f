// Data files of any content. Blocks cut at any place give the same rows. Rows written to a file
// read back the same, and so do rows copied as text and pasted, if their counts may be pasted.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "statistics/data_list.h"
#include "statistics/data_reader.h"
#include "statistics/pasted_rows.h"

namespace {

using kav::DataFault;
using kav::DataList;
using kav::DataReader;
using kav::DataShape;

void Check(bool holds) {
  if (!holds) std::abort();
}

struct Read {
  DataList list;
  std::optional<DataFault> fault;
};

/// Reads `text` in blocks of 1 to 8 bytes, whose sizes `cuts` tells; without any, in one block.
Read ReadIn(std::string_view text, DataShape shape, std::string_view cuts) {
  Read read{DataList(shape), {}};
  DataReader reader(shape, [&](const kav::DataRow& row) { return read.list.Append(row); });
  for (std::size_t i = 0; !text.empty() && !read.fault; ++i) {
    const std::size_t size =
        cuts.empty() ? text.size() : 1 + static_cast<unsigned char>(cuts[i % cuts.size()]) % 8U;
    // In memory of its own, so that the sanitizer finds a view into a block that is gone.
    const std::string block(text.substr(0, size));
    read.fault = reader.Read(block);
    text.remove_prefix(block.size());
  }
  if (!read.fault) read.fault = reader.Finish();
  return read;
}

bool SameRow(const DataList& a, const DataList& b, std::size_t row) {
  return a.ValueText(row, 0) == b.ValueText(row, 0) && a.ValueText(row, 1) == b.ValueText(row, 1) &&
         a.CountText(row) == b.CountText(row);
}

void CheckSame(const DataList& a, const DataList& b) {
  Check(a.RowCount() == b.RowCount() && a.Total() == b.Total());
  Check(a.CompleteRowCount() == b.CompleteRowCount());
  for (std::size_t row = 0; row < a.RowCount(); ++row) Check(SameRow(a, b, row));
}

void CheckTotal(const DataList& list) {
  std::int64_t total = 0;
  for (std::size_t row = 0; row < list.RowCount(); ++row) total += list.Count(row);
  Check(total == list.Total());
}

/// The file that holds `list`.
std::string Print(const DataList& list) {
  std::string text;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    for (std::size_t i = 0; i < kav::VariablesOf(list.Shape()); ++i) {
      text.append(list.ValueText(row, i)) += '\t';
    }
    text += list.CountText(row) + "\r\n";
  }
  return text;
}

void CheckSorting(DataList list) {
  const std::size_t rows = list.RowCount();
  const std::int32_t total = list.Total();
  list.Sort(0, DataList::Direction::Ascending);
  Check(list.RowCount() == rows && list.Total() == total);
  for (std::size_t row = 1; row < rows; ++row) Check(list.Value(row - 1, 0) <= list.Value(row, 0));
}

void CheckPasting(std::u16string_view text, DataShape shape) {
  const auto pasted = kav::ReadPastedRows(text, shape, {}, {});
  const auto* const read = std::get_if<kav::PastedRows>(&pasted);
  if (read == nullptr) return;
  std::vector<std::size_t> all(read->rows.RowCount());
  std::iota(all.begin(), all.end(), std::size_t{0});
  const auto again = kav::ReadPastedRows(kav::PrintRows(read->rows, all), shape, {}, {});
  const auto& copy = std::get<kav::PastedRows>(again);
  Check(copy.complaint.empty() && copy.rows.RowCount() == read->rows.RowCount());
  Check(copy.rows.Total() == read->rows.Total());
}

void CheckShape(std::string_view text, DataShape shape) {
  const Read whole = ReadIn(text, shape, {});
  const Read cut = ReadIn(text, shape, text);
  Check(whole.fault.has_value() == cut.fault.has_value());
  Check(!whole.fault ||
        (whole.fault->line == cut.fault->line && whole.fault->refusal == cut.fault->refusal));
  CheckSame(whole.list, cut.list);
  CheckTotal(whole.list);
  const Read again = ReadIn(Print(whole.list), shape, {});
  Check(!again.fault);
  CheckSame(whole.list, again.list);
  CheckSorting(whole.list);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::u16string wide(data, data + size);
  for (const DataShape shape : {DataShape::OneVariable, DataShape::TwoVariables}) {
    CheckShape(text, shape);
    CheckPasting(wide, shape);
  }
  return 0;
}
