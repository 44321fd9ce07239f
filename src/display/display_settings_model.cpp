#include "display/display_settings_model.h"

#include <array>
#include <cstdint>

#include "common/number_text.h"
#include "display/comma_reading.h"
#include "display/display_settings_texts.h"

namespace kav {
namespace {

using DisplayRefusal = Refusal<DisplayField>;

// One large enough to be grouped, one small enough to need zeros; both with many decimals.
constexpr std::array kSamples{1234567.891, 0.000123456789};

std::u16string PrintBox(int value) {
  return Widen(PrintInteger(value));
}

std::optional<int> ReadBox(std::u16string_view box, const IntegerRange& range) {
  const auto value = ReadInteger<std::uint16_t>(Narrow(TrimBlanks(box)));
  return value && range.Contains(*value) ? value : std::nullopt;
}

/// Why `box`, the box of `entry`, is refused.
std::u16string WhyNot(std::u16string_view box, std::u16string_view entry,
                      const IntegerRange& range) {
  return CommaRefusal(box).value_or(NotInRange(entry, range.least, range.most));
}

std::u16string Samples(const DisplayFormat& format) {
  std::u16string text;
  for (const double sample : kSamples) {
    if (!text.empty()) text += u'\n';
    if (const auto shown = FormatNumber(sample, format)) text += Widen(*shown);
  }
  return text;
}

}  // namespace

DisplaySettingsModel::DisplaySettingsModel(const SettingsStore& store, DisplayPage first)
    : kept_(LoadDisplaySettings(store)),
      look_(LoadLookSettings(store)),
      page_(first),
      type_(KeptFormat().type) {
  FillBoxes();
}

std::u16string_view DisplaySettingsModel::GroupCaption() const {
  return page_ == DisplayPage::Normal ? kNormalGroup : kMatrixGroup;
}

std::u16string DisplaySettingsModel::Example() const {
  const auto format = TypedFormat();
  return format ? Samples(*format)
                : NotInRange(kPrecisionEntry, kPrecisionRange.least, kPrecisionRange.most);
}

std::optional<DisplayRefusal> DisplaySettingsModel::TurnTo(DisplayPage page) {
  if (auto refusal = TakeOver()) return refusal;
  page_ = page;
  type_ = KeptFormat().type;
  FillBoxes();
  return std::nullopt;
}

std::optional<DisplayRefusal> DisplaySettingsModel::Accept(SettingsStore& store) {
  if (auto refusal = TakeOver()) return refusal;
  StoreDisplaySettings(kept_, store);
  StoreLookSettings(look_, store);
  return std::nullopt;
}

DisplayFormat DisplaySettings::*DisplaySettingsModel::PageFormat() const {
  return page_ == DisplayPage::Normal ? &DisplaySettings::normal : &DisplaySettings::matrix;
}

std::optional<DisplayFormat> DisplaySettingsModel::TypedFormat() const {
  const auto precision = ReadBox(precision_, kPrecisionRange);
  if (precision) return DisplayFormat{type_, *precision};
  // The samples do not depend on a precision that the type does not use.
  if (!TakesPrecision()) return DisplayFormat{type_, KeptFormat().precision};
  return std::nullopt;
}

std::optional<DisplayRefusal> DisplaySettingsModel::TakeOver() {
  // A disabled precision box is checked as well, since what it shows would be stored.
  const auto precision = ReadBox(precision_, kPrecisionRange);
  const auto columnWidth = ReadBox(columnWidth_, kColumnWidthRange);
  std::optional<DisplayRefusal> refusal;
  if (!precision) {
    refusal = {WhyNot(precision_, kPrecisionEntry, kPrecisionRange), DisplayField::Precision};
  } else if (!columnWidth) {
    refusal = {WhyNot(columnWidth_, kColumnWidthEntry, kColumnWidthRange),
               DisplayField::ColumnWidth};
  } else {
    kept_.*PageFormat() = {type_, *precision};
    kept_.columnWidth = *columnWidth;
  }
  FillBoxes();
  return refusal;
}

void DisplaySettingsModel::FillBoxes() {
  precision_ = PrintBox(KeptFormat().precision);
  columnWidth_ = PrintBox(kept_.columnWidth);
}

}  // namespace kav
