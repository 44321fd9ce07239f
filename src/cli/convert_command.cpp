#include "cli/commands.h"

#include <cmath>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/cli_texts.h"
#include "cli/items.h"
#include "cli/stored_settings.h"
#include "cli/unit_rows.h"
#include "common/number_text.h"
#include "converter/conversion.h"
#include "converter/converter_texts.h"
#include "converter/user_conversions.h"
#include "display/number_input.h"
#include "engine/calc_error.h"

namespace kav {
namespace {

std::string WhyNot(NameFailure failure, std::string_view name, const UnitCategory& category,
                   const std::vector<UnitRow>& rows) {
  const std::string caption = Narrow(category.caption);
  if (failure == NameFailure::Ambiguous) return IsSeveralUnits(caption, name);
  return HasNoUnit(caption, NumberOf(category), name) + DidYouMean(RowsNear(rows, name));
}

std::string WhyNoCategory(std::string_view name) {
  const std::string near = CategoryNear(name);
  if (near.empty()) return NoCategoryIs(name);
  return NoCategoryIs(name) + DidYouMean(std::vector<std::string>{near});
}

/// A conversion, and how many items name it.
struct NamedConversion {
  std::function<double(double)> convert;
  std::size_t names;
};

/// The conversion that the rows at `places` name: a unit and another one, or one conversion.
std::function<double(double)> ConversionOf(const UnitCategory& category,
                                           const std::vector<UnitRow>& rows,
                                           const std::vector<std::size_t>& places) {
  const std::size_t first = places.front();
  switch (category.kind) {
    case CategoryKind::Rates:
      return [from = category.units[first], to = category.units[places.back()]](double value) {
        return ConvertUnits(value, from, to);
      };
    case CategoryKind::Temperature:
      return TemperatureConversions()[first].convert;
    case CategoryKind::UserDefined:
      break;
  }
  const double rate = UserConversion{rows[first].name, rows[first].rate}.Rate();
  return [rate](double value) { return ConvertByRate(value, rate); };
}

/// The conversion that the first of `items` (not empty) name, or why they name none.
Expected<NamedConversion, std::string> FindConversion(const std::vector<std::string_view>& items,
                                                      const SettingsStore& settings) {
  const UnitCategory* category = FindCategory(items.front());
  if (category == nullptr) return WhyNoCategory(items.front());
  const auto rows = UnitRows(*category, settings);
  if (rows.empty()) return Narrow(kNoUserConversionStored);
  const std::size_t names = category->kind == CategoryKind::Rates ? 2 : 1;
  if (items.size() <= names) {
    return CategoryTakes(Narrow(category->caption), NumberOf(*category),
                         names == 2 ? kTwoUnits : kOneConversion);
  }
  std::vector<std::size_t> places;
  for (std::size_t i = 1; i <= names; ++i) {
    const auto place = FindRow(rows, items[i]);
    if (!place) return WhyNot(place.error(), items[i], *category, rows);
    places.push_back(*place);
  }
  return NamedConversion{ConversionOf(*category, rows, places), names + 1};
}

Answer AnswerConverted(std::string_view text, const NamedConversion& named) {
  const auto value = ReadShownNumber(text);
  if (!value) return Failure{NotANumber(text)};
  const double converted = named.convert(*value);
  // Raw numbers include infinity, but it is no answer here.
  if (!std::isfinite(converted)) return Failure{MakeError(CalcErrorCode::OutOfRange).message};
  return converted;
}

int Convert(CommandLine line) {
  StoredSettings settings(line.options);
  const auto named = FindConversion(line.items, settings.Store());
  settings.TellNotices();
  if (!named) return Complain(named.error(), *line.command);
  line.items.erase(line.items.begin(),
                   line.items.begin() + static_cast<std::ptrdiff_t>(named->names));
  return AnswerItems(line, kLongestText,
                     [&](std::string_view item) { return AnswerConverted(item, *named); });
}

int ListUnits(const CommandLine& line) {
  if (line.items.size() > 1) return Complain(kListTakesOneCategory, *line.command);
  const UnitCategory* only = line.items.empty() ? nullptr : FindCategory(line.items.front());
  if (only == nullptr && !line.items.empty()) {
    return Complain(WhyNoCategory(line.items.front()), *line.command);
  }
  StoredSettings settings(line.options);
  Rows rows(line.options);
  for (const UnitCategory& category : UnitCategories()) {
    if (only != nullptr && only != &category) continue;
    for (const auto& [name, rate] : UnitRows(category, settings.Store())) {
      rows.Add({Narrow(category.caption), name, CellOf(rate)});
    }
  }
  return AnswerOnce(rows, line.options);
}

}  // namespace

int RunConvert(const CommandLine& line) {
  if (line.options.listsUnits) return ListUnits(line);
  if (line.items.empty()) return Complain(kLacksCategory, *line.command);
  if (line.items.front() != "user") return Convert(line);
  CommandLine rest = line;
  rest.items.erase(rest.items.begin());
  return RunUserConversions(std::move(rest));
}

}  // namespace kav
