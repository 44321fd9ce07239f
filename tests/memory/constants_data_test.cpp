// The delivered table of constants: its form, and that the engine reads what it holds. What the
// numbers have to do with each other is another test.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <set>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "engine/expression_engine.h"
#include "memory/constants_table.h"
#include "support/temporary_folder.h"

namespace kav::constants_data_test {
namespace {

std::string DeliveredBytes() {
  return FileContent(std::string(KAV_DATA_FOLDER) + "/constable.dat");
}

std::vector<Constant> DeliveredRows() {
  const auto table = LoadConstants({KAV_DATA_FOLDER});
  return table ? *table : std::vector<Constant>();
}

TEST(DeliveredConstants, AreAtLeastEighty) {
  EXPECT_GE(DeliveredRows().size(), 80U);
}

TEST(DeliveredConstants, NoRecordButTheFirstIsLost) {
  const std::string bytes = DeliveredBytes();
  const auto records = std::count(bytes.begin(), bytes.end(), ';');
  EXPECT_EQ(static_cast<std::size_t>(records), DeliveredRows().size() + 1);
  EXPECT_EQ(bytes.substr(bytes.size() - 2), ";\n");
}

TEST(DeliveredConstants, TheFirstRecordNamesSourceAndYear) {
  const std::string bytes = DeliveredBytes();
  const std::string first = bytes.substr(0, bytes.find(';'));
  for (const char* part : {"CODATA", "2022", "NIST", "SI Brochure", "9th edition"}) {
    EXPECT_NE(first.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(first.find_first_of("[]="), std::string::npos);
}

TEST(DeliveredConstants, EachIsALineOfPlainAscii) {
  for (const char c : DeliveredBytes()) {
    const auto byte = static_cast<unsigned char>(c);
    EXPECT_TRUE(c == '\n' || (byte >= 0x20 && byte < 0x7F)) << int{byte};
  }
  std::string lines;
  for (const Constant& row : DeliveredRows()) {
    lines += "[" + Narrow(row.group) + "]" + Narrow(row.name) + "=" + Narrow(row.value) + ";\n";
  }
  const std::string bytes = DeliveredBytes();
  EXPECT_EQ(bytes.substr(bytes.find(";\n") + 2), lines);
}

TEST(DeliveredConstants, NamesAreUniqueAndTrimmed) {
  std::set<std::u16string> names;
  for (const Constant& row : DeliveredRows()) {
    EXPECT_TRUE(names.insert(row.name).second) << Narrow(row.name);
    EXPECT_EQ(TrimBlanks(row.name), row.name) << Narrow(row.name);
    EXPECT_EQ(row.name.find_first_of(u"[]=;"), std::u16string::npos) << Narrow(row.name);
    EXPECT_LE(row.name.size(), 64U) << Narrow(row.name);
  }
}

TEST(DeliveredConstants, RowsOfAGroupStandTogether) {
  std::set<std::u16string> groups;
  std::u16string group;
  for (const Constant& row : DeliveredRows()) {
    EXPECT_FALSE(row.group.empty()) << Narrow(row.name);
    if (row.group == group) continue;
    EXPECT_TRUE(groups.insert(row.group).second) << Narrow(row.group);
    group = row.group;
  }
  EXPECT_EQ(DeliveredRows().at(0).group, u"SI defining");
}

TEST(DeliveredConstants, ValuesAreShortAndInLowerCase) {
  for (const Constant& row : DeliveredRows()) {
    EXPECT_LE(row.value.size(), 30U) << Narrow(row.name);
    EXPECT_EQ(row.value.find_first_not_of(u"0123456789.e-"), std::u16string::npos)
        << Narrow(row.value);
  }
}

TEST(DeliveredConstants, TheEngineReadsEachAsTheNumberThatItIs) {
  for (const Constant& row : DeliveredRows()) {
    const std::string text = Narrow(row.value);
    double number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
    EXPECT_EQ(end, text.data() + text.size()) << text;
    const auto value = Evaluate(text, {AngleUnit::Degrees, BaseMode::Decimal});
    ASSERT_TRUE(value) << Narrow(row.name) << " = " << text;
    EXPECT_EQ(*value, number) << Narrow(row.name) << " = " << text;
  }
}

TEST(DeliveredConstants, AConstantWorksInsideOfAnExpression) {
  for (const Constant& row : DeliveredRows()) {
    const std::string text = Narrow(row.value);
    const auto value = Evaluate("2*(" + text + ")", {AngleUnit::Degrees, BaseMode::Decimal});
    ASSERT_TRUE(value) << text;
    EXPECT_EQ(*value, 2 * ReadLeadingNumber(text)) << text;
  }
}

}  // namespace
}  // namespace kav::constants_data_test
