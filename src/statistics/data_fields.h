// The fields that rows are typed into.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "common/refusal.h"
#include "statistics/data_list.h"

namespace kav {

enum class DataField { X, Y, Count };

/// What stands in the fields; a screen of one variable has no `y`.
struct TypedRow {
  std::u16string x;
  std::u16string y;
  std::u16string count = u"1";

  bool operator==(const TypedRow&) const = default;
};

/// The numbers that the fields hold: finite ones, and a count from kLeastCount to kLargestCount.
/// `y` is 0 for one variable.
struct FieldNumbers {
  double x = 0;
  double y = 0;
  std::int32_t count = 1;
};

/// The whole number in a field for a count, within the same bounds; nullopt for anything else.
std::optional<std::int32_t> ReadCount(std::u16string_view text);

/// What `typed` holds, or what the first field that holds no such number must be, from the top.
std::variant<FieldNumbers, Refusal<DataField>> ReadTypedRow(const TypedRow& typed, DataShape shape);

}  // namespace kav
