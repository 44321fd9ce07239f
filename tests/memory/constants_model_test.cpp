#include "memory/constants_model.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "support/temporary_folder.h"

namespace kav::constants_model_test {
namespace {

using Names = std::vector<std::u16string>;
using Row = std::optional<std::size_t>;

constexpr std::ptrdiff_t kFar = std::numeric_limits<std::ptrdiff_t>::max();

/// A folder with the file that holds `content`.
struct TableFolder {
  explicit TableFolder(const std::string& content) {
    PutFile(folder.File("constable.dat"), content);
  }

  TemporaryFolder folder;
};

class ConstantsModelTest : public testing::Test {
 protected:
  Names ShownNames() const {
    Names names;
    for (std::size_t i = 0; i < model_.ShownCount(); ++i) names.push_back(model_.Shown(i).name);
    return names;
  }

  TableFolder table_{
      "[length]inch=0.0254;[length]foot=0.3048;[mass]pound=0.45359237;[mass]ounce= 0.03 ;"
      "[force]pound force=4.4;"};
  ConstantsModel model_{{table_.folder.Path()}};
};

TEST_F(ConstantsModelTest, OpensWithAllRowsAndNoneSelected) {
  EXPECT_EQ(model_.LoadFailure(), std::nullopt);
  EXPECT_EQ(ShownNames(), (Names{u"inch", u"foot", u"pound", u"ounce", u"pound force"}));
  EXPECT_EQ(model_.CountText(), u"5 of 5");
  EXPECT_EQ(model_.SelectedRow(), std::nullopt);
  EXPECT_EQ(model_.SelectedName(), u"");
  EXPECT_EQ(model_.SelectedValue(), u"");
}

TEST_F(ConstantsModelTest, TheFilterLooksForWordsInGroupNameAndValue) {
  const std::pair<std::u16string, Names> rows[] = {
      {u"pound", {u"pound", u"pound force"}},
      {u"POUND", {u"pound", u"pound force"}},
      {u"mass", {u"pound", u"ounce"}},
      {u"force pound", {u"pound force"}},
      {u"0.45", {u"pound"}},
      {u"nothing", {}},
      {u"", {u"inch", u"foot", u"pound", u"ounce", u"pound force"}},
  };
  for (const auto& [filter, names] : rows) {
    model_.SetFilter(filter);
    EXPECT_EQ(ShownNames(), names) << testing::PrintToString(filter);
  }
}

TEST(ConstantsModelOfNature, TheSymbolThatIsTypedComesFirst) {
  ConstantsModel model({KAV_DATA_FOLDER});
  const std::pair<std::u16string_view, std::u16string_view> rows[] = {
      {u"R", u"molar gas constant R (J/(mol K))"},
      {u" c ", u"speed of light in vacuum c (m/s)"},
      {u"G", u"Newtonian constant of gravitation G (m^3/(kg s^2))"},
      {u"k", u"Boltzmann constant k (J/K)"},
      {u"h", u"Planck constant h (J s)"},
      {u"n_a", u"Avogadro constant N_A (1/mol)"},
      {u"Moles gas", u"molar gas constant R (J/(mol K))"},
      {u"mole gas", u"molar gas constant R (J/(mol K))"},
      {u"light vacuum speed", u"speed of light in vacuum c (m/s)"},
  };
  for (const auto& [typed, name] : rows) {
    model.SetFilter(typed);
    ASSERT_GT(model.ShownCount(), 0U) << Narrow(typed);
    EXPECT_EQ(model.Shown(0).name, name);
  }
}

TEST_F(ConstantsModelTest, TheCountIsOfTheRowsShownAndOfAll) {
  model_.SetFilter(u"pound");
  EXPECT_EQ(model_.CountText(), u"2 of 5");
  model_.SetFilter(u"nothing");
  EXPECT_EQ(model_.CountText(), u"0 of 5");
}

TEST_F(ConstantsModelTest, SelectingARowShowsItsTexts) {
  model_.Select(3);
  EXPECT_EQ(model_.SelectedRow(), Row(3));
  EXPECT_EQ(model_.SelectedName(), u"ounce");
  EXPECT_EQ(model_.SelectedValue(), u" 0.03 ");
}

TEST_F(ConstantsModelTest, ARowThatIsNotShownSelectsNone) {
  for (const Row row : {Row(5), Row(std::numeric_limits<std::size_t>::max()), Row()}) {
    model_.Select(1);
    model_.Select(row);
    EXPECT_EQ(model_.SelectedRow(), std::nullopt);
    EXPECT_EQ(model_.SelectedName(), u"");
  }
}

TEST_F(ConstantsModelTest, TheSelectionStaysWithItsRowWhileItIsShown) {
  model_.Select(4);
  model_.SetFilter(u"pound");
  EXPECT_EQ(model_.SelectedRow(), Row(1));
  EXPECT_EQ(model_.SelectedName(), u"pound force");
  model_.SetFilter(u"");
  EXPECT_EQ(model_.SelectedRow(), Row(4));
}

TEST_F(ConstantsModelTest, TheSelectionEndsWhenItsRowIsNotShown) {
  model_.Select(0);
  model_.SetFilter(u"pound");
  EXPECT_EQ(model_.SelectedRow(), std::nullopt);
  EXPECT_EQ(model_.SelectedName(), u"");
  EXPECT_EQ(model_.SelectedValue(), u"");
  EXPECT_FALSE(model_.Choose());
  model_.SetFilter(u"");
  EXPECT_EQ(model_.SelectedRow(), std::nullopt);
}

TEST_F(ConstantsModelTest, TheSelectionMovesWithinTheRowsShown) {
  struct Step {
    Row from;
    std::ptrdiff_t rows;
    Row to;
  };
  const Step steps[] = {
      {Row(), 1, 0}, {Row(), 10, 0},    {Row(), -1, 4}, {Row(), -kFar - 1, 4},
      {0, 1, 1},     {1, 3, 4},         {3, 10, 4},     {4, 1, 4},
      {4, -1, 3},    {2, -10, 0},       {0, -1, 0},     {2, kFar, 4},
      {2, -kFar, 0}, {2, -kFar - 1, 0}, {2, 0, 2},      {Row(), 0, Row()},
  };
  for (const Step& step : steps) {
    model_.Select(step.from);
    model_.Move(step.rows);
    EXPECT_EQ(model_.SelectedRow(), step.to) << step.rows;
  }
}

TEST_F(ConstantsModelTest, MovingLeavesOutWhatIsNotShown) {
  model_.Select(2);
  model_.SetFilter(u"pound");
  model_.Move(1);
  EXPECT_EQ(model_.SelectedName(), u"pound force");
  model_.SetFilter(u"nothing");
  model_.Move(1);
  EXPECT_EQ(model_.SelectedRow(), std::nullopt);
}

TEST_F(ConstantsModelTest, TheValueIsChosenAsItStands) {
  model_.Select(3);
  const auto value = model_.Choose();
  ASSERT_TRUE(value);
  EXPECT_EQ(*value, u" 0.03 ");
}

TEST_F(ConstantsModelTest, WithoutASelectionNothingIsChosen) {
  const auto value = model_.Choose();
  ASSERT_FALSE(value);
  EXPECT_EQ(value.error(), u"Please select a constant");
}

TEST(ConstantsModelWithoutAFile, HasNoRowsAndSaysWhy) {
  const TemporaryFolder folder;
  ConstantsModel model({folder.Path()});
  const std::string path = folder.File("constable.dat");
  EXPECT_EQ(model.LoadFailure(),
            std::u16string(path.begin(), path.end()) + u" file was not found.");
  EXPECT_EQ(model.ShownCount(), 0U);
  EXPECT_EQ(model.CountText(), u"0 of 0");
  model.Move(1);
  model.Select(0);
  EXPECT_FALSE(model.Choose());
}

TEST(ConstantsModelWithoutAFile, AFileWithoutRowsIsNoFailure) {
  const TableFolder table("no rows");
  const ConstantsModel model({table.folder.Path()});
  EXPECT_EQ(model.LoadFailure(), std::nullopt);
  EXPECT_EQ(model.ShownCount(), 0U);
}

TEST(ConstantsModelWithEqualNames, TheSelectionIsOfOneRow) {
  const TableFolder table("[a]x=1;[b]x=1;");
  ConstantsModel model({table.folder.Path()});
  model.Select(1);
  model.SetFilter(u"x");
  EXPECT_EQ(model.SelectedRow(), Row(1));
}

}  // namespace
}  // namespace kav::constants_model_test
