// The categories of the unit converter and the units of each, in the order in which they are
// offered.
#pragma once

#include <span>
#include <string_view>

namespace kav {

/// A unit and its size in the base unit of its category, the one whose rate is 1.
struct Unit {
  std::u16string_view name;
  double rate;
};

/// How the conversions of a category are calculated and listed.
enum class CategoryKind {
  Rates,        ///< from any of its units to any other
  Temperature,  ///< directed conversions, a formula each
  UserDefined,  ///< directed conversions, a rate each, that the user defined
};

struct UnitCategory {
  std::u16string_view caption;  ///< "01. Area"
  CategoryKind kind;
  std::span<const Unit> units;  ///< empty unless the kind is Rates
};

/// All categories, by their positions.
std::span<const UnitCategory> UnitCategories();

}  // namespace kav
