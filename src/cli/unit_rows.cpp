#include "cli/unit_rows.h"

#include <algorithm>
#include <span>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "converter/conversion.h"
#include "converter/user_conversions.h"
#include "line/near_words.h"

namespace kav {
namespace {

/// The caption without the number at its start.
std::string_view WithoutNumber(std::string_view caption) {
  constexpr std::string_view kBehindNumber = ". ";
  return caption.substr(caption.find(kBehindNumber) + kBehindNumber.size());
}

/// Whether `name` is the beginning of `whole`, in any case, and not nothing.
bool Begins(std::string_view whole, std::string_view name) {
  return !name.empty() && EqualsIgnoringCase(whole.substr(0, name.size()), name);
}

/// The indices of the rows that begin with `name`.
std::vector<std::size_t> PlacesThatBegin(const std::vector<UnitRow>& rows, std::string_view name) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (Begins(rows[i].name, name)) places.push_back(i);
  }
  return places;
}

/// The only category whose caption, with or without its number, begins with `name`.
const UnitCategory* CategoryThatBegins(std::string_view name) {
  const UnitCategory* only = nullptr;
  for (const UnitCategory& category : UnitCategories()) {
    const std::string caption = Narrow(category.caption);
    const std::string_view words = WithoutNumber(caption);
    const bool hasMoreThanNumber = name.size() > caption.size() - words.size();
    if (!(hasMoreThanNumber && Begins(caption, name)) && !Begins(words, name)) continue;
    if (only != nullptr) return nullptr;
    only = &category;
  }
  return only;
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
  return CategoryThatBegins(name);
}

std::string CategoryNear(std::string_view name) {
  std::vector<std::u16string> names;
  for (const UnitCategory& category : UnitCategories()) {
    names.push_back(Widen(WithoutNumber(Narrow(category.caption))));
  }
  const auto place = NearestName(Widen(name), names);
  return place ? Narrow(names[*place]) : std::string();
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
  if (first == rows.end()) {
    const auto begun = PlacesThatBegin(rows, name);
    if (begun.size() == 1) return begun.front();
    return NameFailure::Unknown;
  }
  if (std::find_if(first + 1, rows.end(), isSame) != rows.end()) return NameFailure::Ambiguous;
  return place(first);
}

std::vector<std::string> RowsNear(const std::vector<UnitRow>& rows, std::string_view name) {
  constexpr std::size_t kMost = 4;
  std::vector<std::string> near;
  const auto begun = PlacesThatBegin(rows, name);
  if (begun.size() <= kMost) {
    for (const std::size_t place : begun) near.push_back(rows[place].name);
  }
  if (!begun.empty()) return near;
  std::vector<std::u16string> names;
  names.reserve(rows.size());
  for (const UnitRow& row : rows) names.push_back(Widen(row.name));
  if (const auto place = NearestName(Widen(name), names)) near.push_back(rows[*place].name);
  return near;
}

}  // namespace kav
