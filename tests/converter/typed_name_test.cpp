#include "converter/typed_name.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "converter/converter_model.h"

namespace kav::typed_name_test {
namespace {

TEST(WithoutNumber, LeavesWhatIsBehindTheNumberAndItsPoint) {
  EXPECT_TRUE(WithoutNumber(u"07. Length") == u"Length");
  for (const std::u16string_view whole :
       {u"", u"Length", u"07", u"07.", u"07.Length", u". Length"}) {
    EXPECT_TRUE(WithoutNumber(whole) == whole);
  }
}

std::u16string Named(std::u16string_view typed, std::size_t start = 0) {
  const auto categories = ConverterModel::Categories();
  const auto place = EntryNamed(categories, typed, start);
  return place ? categories[*place] : std::u16string();
}

TEST(EntryNamed, FindsCategoriesByTheirNames) {
  EXPECT_EQ(Named(u"len"), u"07. Length");
  EXPECT_EQ(Named(u"LENGTH"), u"07. Length");
  EXPECT_EQ(Named(u"t"), u"12. Temperature");
  EXPECT_EQ(Named(u"t", 12), u"13. Torque");
  EXPECT_EQ(Named(u"t", 13), u"12. Temperature") << "around the end";
  EXPECT_EQ(Named(u"flow rate (by"), u"05. Flow Rate (By Volume)");
}

TEST(EntryNamed, ThenGoesByLaterWords) {
  EXPECT_EQ(Named(u"w"), u"04. Energy (Work)");
  EXPECT_EQ(Named(u"wei"), u"08. Mass and Weight");
  EXPECT_EQ(Named(u"vol"), u"14. Volume") << "the name of one before a word of another";
  EXPECT_EQ(Named(u"ength"), u"");
  for (const std::u16string_view none : {u"", u"x", u"lengths"}) EXPECT_EQ(Named(none), u"");
  EXPECT_FALSE(EntryNamed({}, u"a", 0));
}

}  // namespace
}  // namespace kav::typed_name_test
