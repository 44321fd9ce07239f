#include "plotter/range_fields.h"

#include <cmath>

#include "display/number_input.h"
#include "line/shown_number.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

constexpr std::array<std::u16string_view, kRangeFields.size()> kCaptions{
    kXMinCaption, kXMaxCaption, kYMinCaption, kYMaxCaption};

}  // namespace

std::u16string_view CaptionOf(RangeField field) {
  return kCaptions[IndexOf(field)];
}

Expected<PlotRange, Refusal<RangeField>> ReadRange(const RangeTexts& texts, AngleUnit angle) {
  PlotRange range;
  for (const RangeField field : kRangeFields) {
    const std::u16string& text = texts[IndexOf(field)];
    const std::u16string refusal = FieldTakesNumbers(CaptionOf(field), text);
    const auto value = ReadNumberOrExpression(text, refusal, angle);
    if (!value) return Refusal<RangeField>{value.error(), field};
    if (!std::isfinite(*value)) return Refusal<RangeField>{refusal, field};
    range.*BoundOf(field) = *value;
  }
  return range;
}

RangeTexts TextsOf(const PlotRange& range) {
  RangeTexts texts;
  for (const RangeField field : kRangeFields) {
    texts[IndexOf(field)] =
        InsertedNumber(range.*BoundOf(field), DisplayFormat{}, BaseMode::Decimal);
  }
  return texts;
}

std::optional<Refusal<RangeField>> RefuseRange(const PlotRange& range) {
  const auto text = RangeRefusal(range);
  if (!text) return std::nullopt;
  const double width = range.xMax - range.xMin;
  const bool isAboutX = width <= 0 || !std::isfinite(width);
  return Refusal<RangeField>{std::u16string(*text), isAboutX ? RangeField::XMax : RangeField::YMax};
}

}  // namespace kav
