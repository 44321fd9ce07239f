// The units of the converter, as the command line lists and finds them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "converter/unit_tables.h"
#include "settings/settings_store.h"

namespace kav {

/// The category whose number (from 1) or caption is `name`, in any case. The number at the start of
/// the caption may be left out, and the end of the caption, if only one category begins so. nullptr
/// if there is none.
const UnitCategory* FindCategory(std::string_view name);

/// The caption of the category that `name`, which names none, may have meant; empty if none is
/// near.
std::string CategoryNear(std::string_view name);

/// The number (from 1) of `category`, which is one of UnitCategories.
int NumberOf(const UnitCategory& category);

/// What a category offers: a unit, or a conversion from one unit to another.
struct UnitRow {
  std::string name;
  std::string rate;  ///< reads back as the very same number; empty: a formula converts
};

/// The rows of `category` in the order of the converter. Reads `settings` only for the conversions
/// that the user defined.
std::vector<UnitRow> UnitRows(const UnitCategory& category, const SettingsStore& settings);

enum class NameFailure {
  Unknown,
  Ambiguous,  ///< it is several names if the case of letters does not count
};

/// The index of the row called `name` or, if there is none, of the only one called so in another
/// case of letters or else of the only one that begins so in any case.
Expected<std::size_t, NameFailure> FindRow(const std::vector<UnitRow>& rows, std::string_view name);

/// The names of the rows that `name`, which is Unknown, may have meant: a few that begin so, else
/// the nearest one, if one is near.
std::vector<std::string> RowsNear(const std::vector<UnitRow>& rows, std::string_view name);

}  // namespace kav
