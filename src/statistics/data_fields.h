// The fields that rows are typed into.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "common/refusal.h"
#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "statistics/data_list.h"

namespace kav {

enum class DataField { X, Y, Count };

/// The texts of the fields. A screen of one variable has no `y`.
struct TypedRow {
  std::u16string x;
  std::u16string y;
  std::u16string count = u"1";

  bool operator==(const TypedRow&) const = default;
};

/// The member of TypedRow that is the text of `field`.
constexpr std::u16string TypedRow::*TextOf(DataField field) {
  constexpr std::array kTexts{&TypedRow::x, &TypedRow::y, &TypedRow::count};
  return kTexts[static_cast<std::size_t>(field)];
}

/// The field whose values stand in `column`, as DataList::Sort numbers the columns.
constexpr DataField FieldOfColumn(std::size_t column, DataShape shape) {
  if (column >= VariablesOf(shape)) return DataField::Count;
  return column == 0 ? DataField::X : DataField::Y;
}

/// The values of the fields: finite numbers, and a count from kLeastCount to kLargestCount. `y` is
/// 0 for one variable.
struct FieldNumbers {
  double x = 0;
  double y = 0;
  std::int32_t count = kLeastCount;
};

/// `text` as a count from kLeastCount to kLargestCount; nullopt if it is anything else.
std::optional<std::int32_t> ReadCount(std::u16string_view text);

/// The values of `typed`, or the first of its fields that has none and what that field takes: a
/// number, or an expression with angles in `angle` that comes to one.
Expected<FieldNumbers, Refusal<DataField>> ReadTypedRow(const TypedRow& typed, DataShape shape,
                                                        AngleUnit angle = AngleUnit::Degrees);

/// A number as lists, fields and memory variables hold it.
std::u16string PlainText(double value, DisplayFormat format);

/// Gives a cell that `list` has the number `text`; the other cells of its row stay as they are.
/// Answers what its field takes, or why the row does not fit, if nothing was changed.
std::optional<std::u16string> OverwriteCell(DataList& list, const DataCell& cell,
                                            std::u16string_view text, DisplayFormat format,
                                            AngleUnit angle = AngleUnit::Degrees);

}  // namespace kav
