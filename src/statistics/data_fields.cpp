#include "statistics/data_fields.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "display/comma_reading.h"
#include "display/number_input.h"
#include "line/shown_number.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The number in the field called `name`, or what that field takes.
Expected<double, std::u16string> ReadValue(std::u16string_view text, std::u16string_view name) {
  auto value = ReadNumberField(text, ValueIsNoNumber(name));
  if (value && !std::isfinite(*value)) return ValueIsTooLarge(name);
  return value;
}

}  // namespace

std::optional<std::int32_t> ReadCount(std::u16string_view text) {
  const auto value = ReadShownNumber(Narrow(text));
  if (!value || *value < kLeastCount || *value > kLargestCount) return std::nullopt;
  if (*value != std::trunc(*value)) return std::nullopt;
  return static_cast<std::int32_t>(*value);
}

Expected<FieldNumbers, Refusal<DataField>> ReadTypedRow(const TypedRow& typed, DataShape shape) {
  FieldNumbers numbers;
  const auto x = ReadValue(typed.x, kXName);
  if (!x) return Refusal<DataField>{x.error(), DataField::X};
  numbers.x = *x;
  if (shape == DataShape::TwoVariables) {
    const auto y = ReadValue(typed.y, kYName);
    if (!y) return Refusal<DataField>{y.error(), DataField::Y};
    numbers.y = *y;
  }
  if (auto comma = CommaRefusal(typed.count)) {
    return Refusal<DataField>{*std::move(comma), DataField::Count};
  }
  const auto count = ReadCount(typed.count);
  if (!count) return Refusal<DataField>{CountIsOutOfRange(), DataField::Count};
  numbers.count = *count;
  return numbers;
}

std::u16string PlainText(double value, DisplayFormat format) {
  return InsertedNumber(value, format, BaseMode::Decimal);
}

std::optional<std::u16string> OverwriteCell(DataList& list, const DataCell& cell,
                                            std::u16string_view text, DisplayFormat format) {
  const DataField field = FieldOfColumn(cell.column, list.Shape());
  TypedRow typed{u"0", u"0"};
  typed.*TextOf(field) = text;
  const auto read = ReadTypedRow(typed, list.Shape());
  if (!read) return read.error().text;
  std::array<std::string, kMostVariables> texts;
  for (std::size_t i = 0; i < VariablesOf(list.Shape()); ++i)
    texts[i] = list.ValueText(cell.row, i);
  std::optional<std::int32_t> count;
  if (!list.CountText(cell.row).empty()) count = list.Count(cell.row);
  if (field == DataField::Count) {
    count = read->count;
  } else {
    const double value = field == DataField::X ? read->x : read->y;
    texts[cell.column] = Narrow(PlainText(value, format));
  }
  const auto refusal = list.Rewrite(cell.row, {{texts[0], texts[1]}, count});
  return refusal ? std::optional(WhyRowsDoNotFit(*refusal)) : std::nullopt;
}

}  // namespace kav
