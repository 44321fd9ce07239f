// The units of the converter as the command line lists and names them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "converter/unit_tables.h"
#include "settings/settings_store.h"

namespace kav {

/// The category with the number (from 1) or the caption `name`, in any case, also without the
/// number that opens the caption; nullptr where there is none.
const UnitCategory* FindCategory(std::string_view name);

/// The number (from 1) of `category`, which is one of UnitCategories.
int NumberOf(const UnitCategory& category);

/// What a category offers: a unit, or a conversion from one unit to another.
struct UnitRow {
  std::string name;
  std::string rate;  ///< a number that reads back as the rate; empty where a formula converts
};

/// The rows of `category` in their order; `settings` hold those that the user defined.
std::vector<UnitRow> UnitRows(const UnitCategory& category, const SettingsStore& settings);

enum class NameFailure {
  Unknown,
  Ambiguous,  ///< it is several names, but for the case of letters
};

/// The place in `rows` of the name that is `name`, or else of the only one that is but for the case
/// of letters.
Expected<std::size_t, NameFailure> FindRow(const std::vector<UnitRow>& rows, std::string_view name);

}  // namespace kav
