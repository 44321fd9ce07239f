// The categories of the unit converter and their units, in the order in which they are offered.
#pragma once

#include <span>
#include <string_view>

namespace kav {

struct Unit {
  std::u16string_view name;
  double rate;  ///< its size in the base unit of its category
};

/// How a category lists and calculates its conversions.
enum class CategoryKind {
  Rates,        ///< from any of its units to any other
  Temperature,  ///< from one scale to another, each with a formula
  UserDefined,  ///< from one unit to another, each with a rate that the user typed
};

struct UnitCategory {
  std::u16string_view caption;  ///< "01. Area"
  CategoryKind kind;
  std::span<const Unit> units;  ///< empty unless the kind is Rates
};

/// All categories.
std::span<const UnitCategory> UnitCategories();

}  // namespace kav
