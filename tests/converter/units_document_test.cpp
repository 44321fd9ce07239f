// The page on units that users read: its rates are those of the program, and its list of rates that
// are not today's definition holds no others.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "converter/unit_tables.h"
#include "support/effort.h"
#include "support/temporary_folder.h"

namespace kav::units_document_test {
namespace {

using test::BitsOf;

using Row = std::vector<std::string>;

std::string Narrow(std::u16string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

/// The cells of "| a | b |".
Row Cells(std::string_view line) {
  Row cells;
  line.remove_prefix(2);
  for (std::size_t end; (end = line.find(" |")) != std::string_view::npos;) {
    cells.emplace_back(line.substr(0, end));
    line.remove_prefix(std::min(end + 3, line.size()));
  }
  return cells;
}

/// The rows of all tables with `columns` columns, without their heads. In front of the cells stands
/// the heading of the section.
std::vector<Row> Rows(std::size_t columns) {
  std::istringstream page(FileContent(std::string(KAV_DOCS_FOLDER) + "/units.md"));
  std::vector<Row> rows;
  std::string heading;
  bool inBody = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with('#')) heading = line.substr(line.find(' ') + 1);
    if (!line.starts_with("| ")) inBody = false;
    const Row cells = line.starts_with("| ") ? Cells(line) : Row();
    if (inBody && cells.size() == columns) {
      rows.push_back({heading});
      rows.back().insert(rows.back().end(), cells.begin(), cells.end());
    }
    if (line.starts_with("| ---")) inBody = true;
  }
  return rows;
}

double NumberOf(std::string_view text) {
  double number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  EXPECT_EQ(read.ptr, text.data() + text.size()) << text;
  return number;
}

const Unit* Find(std::string_view caption, std::string_view name) {
  for (const UnitCategory& category : UnitCategories())
    for (const Unit& unit : category.units)
      if (Narrow(category.caption) == caption && Narrow(unit.name) == name) return &unit;
  return nullptr;
}

TEST(UnitsDocument, ListsEveryRateOfTheProgramInItsOrder) {
  const std::vector<Row> rows = Rows(2);
  std::size_t next = 0;
  for (const UnitCategory& category : UnitCategories())
    for (const Unit& unit : category.units) {
      ASSERT_LT(next, rows.size());
      const Row& row = rows[next++];
      EXPECT_EQ(row[0], Narrow(category.caption));
      EXPECT_EQ(row[1], Narrow(unit.name));
      EXPECT_EQ(BitsOf(NumberOf(row[2])), BitsOf(unit.rate)) << row[1];
    }
  EXPECT_EQ(next, rows.size());
  EXPECT_EQ(next, 235u);
}

TEST(UnitsDocument, NamesRatesThatAreMoreThanOnePartInAMillionOff) {
  const std::vector<Row> rows = Rows(5);
  EXPECT_EQ(rows.size(), 41u);
  std::set<std::string> seen;
  for (const Row& row : rows) {
    const Unit* unit = Find(row[1], row[2]);
    ASSERT_NE(unit, nullptr) << row[1] << ", " << row[2];
    EXPECT_EQ(BitsOf(NumberOf(row[3])), BitsOf(unit->rate)) << row[2];
    EXPECT_GT(std::abs(unit->rate / NumberOf(row[4]) - 1), 1e-6) << row[2];
    EXPECT_FALSE(row[5].empty()) << row[2];
    EXPECT_TRUE(seen.insert(row[1] + row[2]).second) << row[2];
  }
}

}  // namespace
}  // namespace kav::units_document_test
