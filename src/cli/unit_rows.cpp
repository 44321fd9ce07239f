#include "cli/unit_rows.h"

#include <algorithm>
#include <span>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "converter/conversion.h"
#include "converter/user_conversions.h"

namespace kav {
namespace {

/// The caption without the number at its start.
std::string_view WithoutNumber(std::string_view caption) {
  constexpr std::string_view kBehindNumber = ". ";
  return caption.substr(caption.find(kBehindNumber) + kBehindNumber.size());
}

const UnitCategory* CategoryNumbered(std::size_t number) {
  const auto categories = UnitCategories();
  return number == 0 || number > categories.size() ? nullptr : &categories[number - 1];
}

/// The fewest digits that read back as `rate`, with an exponent if it is very large or small.
std::string RateText(double rate) {
  constexpr double kLeastPlain = 1e-4;
  constexpr double kLeastTooLarge = 1e16;
  std::string text;
  if (rate >= kLeastPlain && rate < kLeastTooLarge) {
    AppendShortestPlain(text, rate);
    return text;
  }
  int decimals = 0;
  do {
    text = PrintScientific(rate, decimals++);
  } while (ReadLeadingNumber(text) != rate);
  return text;
}

std::vector<UnitRow> RowsOfUnits(std::span<const Unit> units) {
  std::vector<UnitRow> rows;
  for (const Unit& unit : units) rows.push_back({Narrow(unit.name), RateText(unit.rate)});
  return rows;
}

std::vector<UnitRow> RowsOfTemperature() {
  std::vector<UnitRow> rows;
  for (const auto& conversion : TemperatureConversions()) {
    rows.push_back({Narrow(conversion.caption), {}});
  }
  return rows;
}

std::vector<UnitRow> RowsOfUser(const SettingsStore& settings) {
  std::vector<UnitRow> rows;
  for (auto& [text, rateText] : LoadUserConversions(settings)) {
    rows.push_back({std::move(text), std::move(rateText)});
  }
  return rows;
}

}  // namespace

const UnitCategory* FindCategory(std::string_view name) {
  if (const auto number = ReadInteger<std::size_t>(name)) return CategoryNumbered(*number);
  for (const UnitCategory& category : UnitCategories()) {
    const std::string caption = Narrow(category.caption);
    if (EqualsIgnoringCase(name, caption) || EqualsIgnoringCase(name, WithoutNumber(caption))) {
      return &category;
    }
  }
  return nullptr;
}

int NumberOf(const UnitCategory& category) {
  return static_cast<int>(&category - UnitCategories().data()) + 1;
}

std::vector<UnitRow> UnitRows(const UnitCategory& category, const SettingsStore& settings) {
  switch (category.kind) {
    case CategoryKind::Rates:
      return RowsOfUnits(category.units);
    case CategoryKind::Temperature:
      return RowsOfTemperature();
    case CategoryKind::UserDefined:
      break;
  }
  return RowsOfUser(settings);
}

Expected<std::size_t, NameFailure> FindRow(const std::vector<UnitRow>& rows,
                                           std::string_view name) {
  const auto place = [&rows](auto row) { return static_cast<std::size_t>(row - rows.begin()); };
  const auto exact =
      std::find_if(rows.begin(), rows.end(), [&](const UnitRow& row) { return row.name == name; });
  if (exact != rows.end()) return place(exact);
  const auto isSame = [&](const UnitRow& row) { return EqualsIgnoringCase(row.name, name); };
  const auto first = std::find_if(rows.begin(), rows.end(), isSame);
  if (first == rows.end()) return NameFailure::Unknown;
  if (std::find_if(first + 1, rows.end(), isSame) != rows.end()) return NameFailure::Ambiguous;
  return place(first);
}

}  // namespace kav
