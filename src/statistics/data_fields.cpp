#include "statistics/data_fields.h"

#include <cmath>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "display/number_input.h"
#include "line/shown_number.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// The number in the field called `name`, or what that field takes.
Expected<double, std::u16string> ReadValue(std::u16string_view text, std::u16string_view name,
                                           AngleUnit angle) {
  auto value = ReadNumberOrExpression(text, ValueIsNoNumber(name), angle);
  if (value && !std::isfinite(*value)) return ValueIsTooLarge(name);
  return value;
}

std::optional<std::int32_t> AsCount(double value) {
  if (!(value >= kLeastCount) || value > kLargestCount) return std::nullopt;
  if (value != std::trunc(value)) return std::nullopt;
  return static_cast<std::int32_t>(value);
}

}  // namespace

std::optional<std::int32_t> ReadCount(std::u16string_view text) {
  const auto value = ReadShownNumber(Narrow(text));
  return value ? AsCount(*value) : std::nullopt;
}

Expected<FieldNumbers, Refusal<DataField>> ReadTypedRow(const TypedRow& typed, DataShape shape,
                                                        AngleUnit angle) {
  FieldNumbers numbers;
  const auto x = ReadValue(typed.x, kXName, angle);
  if (!x) return Refusal<DataField>{x.error(), DataField::X};
  numbers.x = *x;
  if (shape == DataShape::TwoVariables) {
    const auto y = ReadValue(typed.y, kYName, angle);
    if (!y) return Refusal<DataField>{y.error(), DataField::Y};
    numbers.y = *y;
  }
  const auto typedCount = ReadNumberOrExpression(typed.count, CountIsOutOfRange(), angle);
  if (!typedCount) return Refusal<DataField>{typedCount.error(), DataField::Count};
  const auto count = AsCount(*typedCount);
  if (!count) return Refusal<DataField>{CountIsOutOfRange(), DataField::Count};
  numbers.count = *count;
  return numbers;
}

std::u16string PlainText(double value, DisplayFormat format) {
  return InsertedNumber(value, format, BaseMode::Decimal);
}

std::optional<std::u16string> OverwriteCell(DataList& list, const DataCell& cell,
                                            std::u16string_view text, DisplayFormat format,
                                            AngleUnit angle) {
  const DataField field = FieldOfColumn(cell.column, list.Shape());
  TypedRow typed{u"0", u"0"};
  typed.*TextOf(field) = text;
  const auto read = ReadTypedRow(typed, list.Shape(), angle);
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
