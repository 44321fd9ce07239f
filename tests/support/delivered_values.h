// The numbers of the delivered constants by symbol and unit, for the test that holds them against
// each other.
#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstddef>
#include <map>
#include <numbers>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/number_text.h"
#include "memory/constants_table.h"

namespace kav::test {

/// More digits than a double has: rows that are known exactly are written with all of these.
using Real = long double;

inline constexpr Real kPi = std::numbers::pi_v<Real>;

inline Real Power(Real base, Real exponent) {
  return std::pow(base, exponent);
}

struct DeliveredRow {
  std::string name;
  std::string text;
  Real value;
  Real halfDigit;  ///< half a unit of the last digit; 0 if the text is exact
};

/// The groups whose numbers were agreed on and so have no further digits.
inline bool IsAgreedOn(std::u16string_view group) {
  return group == u"SI defining" || group == u"adopted";
}

inline Real ValueOf(const std::string& text) {
  Real value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

inline Real HalfDigitOf(const std::string& text) {
  const std::size_t end = text.find('e');
  const std::string digits = text.substr(0, end);
  const std::size_t point = digits.find('.');
  const std::size_t decimals = point == std::string::npos ? 0 : digits.size() - point - 1;
  const Real exponent = end == std::string::npos ? 0 : ValueOf(text.substr(end + 1));
  return Power(10, exponent - static_cast<Real>(decimals)) / 2;
}

inline std::vector<DeliveredRow> DeliveredRows() {
  const auto table = LoadConstants({KAV_DATA_FOLDER});
  if (!table) return {};
  std::vector<DeliveredRow> rows;
  for (const Constant& row : *table) {
    const std::string text = Narrow(row.value);
    const Real halfDigit = IsAgreedOn(row.group) ? 0 : HalfDigitOf(text);
    rows.push_back({Narrow(row.name), text, ValueOf(text), halfDigit});
  }
  return rows;
}

/// The values of the delivered rows, by symbol and unit. Notes which of them were asked for, and
/// can show one of them at the edge of what its digits allow.
class Values {
 public:
  /// The value of the one row whose name ends with the word or words `ending`.
  Real operator[](std::string_view ending) const {
    const std::size_t row = Find(ending);
    used_.insert(row);
    const DeliveredRow& delivered = rows_.at(row);
    return delivered.value + (row == shifted_ ? delivered.halfDigit : 0);
  }

  std::size_t Find(std::string_view ending) const {
    const auto known = found_.find(ending);
    if (known != found_.end()) return known->second;
    const std::string words = " " + std::string(ending);
    std::size_t found = 0;
    std::size_t count = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      if (!rows_[i].name.ends_with(words)) continue;
      found = i;
      ++count;
    }
    EXPECT_EQ(count, 1U) << ending;
    return found_[ending] = found;
  }

  const DeliveredRow& At(std::size_t row) const { return rows_.at(row); }
  std::size_t Count() const { return rows_.size(); }

  void Shift(std::optional<std::size_t> row) { shifted_ = row; }
  void Set(std::size_t row, Real value) { rows_.at(row).value = value; }
  const std::set<std::size_t>& Used() const { return used_; }

 private:
  std::vector<DeliveredRow> rows_ = DeliveredRows();
  std::optional<std::size_t> shifted_;
  mutable std::set<std::size_t> used_;
  mutable std::map<std::string_view, std::size_t> found_;
};

}  // namespace kav::test
