#include "display/display_settings_model.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kav::display_settings_model_test {
namespace {

const std::u16string kPrecisionMessage = u"The precision must be a whole number from 0 to 15.";
const std::u16string kWidthMessage = u"The column width must be a whole number from 10 to 400.";

/// The eight settings as stored; -1 for none.
std::vector<std::int32_t> Stored(const SettingsStore& store) {
  std::vector<std::int32_t> values;
  for (const char* name :
       {"Display Type", "Precision", "Matrix Display Type", "Matrix Precision",
        "Matrix Default Row", "Matrix Default Col", "Matrix Default Value", "Matrix Colum Width"}) {
    values.push_back(store.Get(SettingKey<std::int32_t>{"Config", name, -1}));
  }
  return values;
}

const std::vector<std::int32_t> kNothing(8, -1);

void ExpectRefusal(const std::optional<Refusal<DisplayField>>& refusal, const std::u16string& text,
                   DisplayField focus) {
  ASSERT_TRUE(refusal.has_value());
  EXPECT_EQ(refusal->text, text);
  EXPECT_EQ(refusal->focus, focus);
}

class DisplaySettingsModelTest : public testing::Test {
 protected:
  MemorySettingsStore store;
  DisplaySettingsModel model{store, DisplayPage::Normal};
};

TEST_F(DisplaySettingsModelTest, AFirstStartShowsTheDefaults) {
  EXPECT_EQ(model.Page(), DisplayPage::Normal);
  EXPECT_EQ(model.GroupCaption(), u"Normal Display Formatting");
  EXPECT_FALSE(model.ShowsMatrixParts());
  EXPECT_EQ(model.Type(), DisplayType::Thousands);
  EXPECT_EQ(model.Precision(), u"7");
  EXPECT_FALSE(model.TakesPrecision());
  EXPECT_EQ(model.ColumnWidth(), u"60");
  EXPECT_EQ(model.MatrixRows(), 3);
  EXPECT_EQ(model.MatrixColumns(), 3);
  EXPECT_EQ(model.Alignment(), CellAlignment::Left);
}

TEST_F(DisplaySettingsModelTest, TheCallerSaysWhichPageIsFirst) {
  const DisplaySettingsModel matrix(store, DisplayPage::Matrix);
  EXPECT_EQ(matrix.Page(), DisplayPage::Matrix);
  EXPECT_EQ(matrix.GroupCaption(), u"Matrix Display Formatting");
  EXPECT_TRUE(matrix.ShowsMatrixParts());
  EXPECT_EQ(matrix.Type(), DisplayType::FloatingPoint);
  EXPECT_EQ(matrix.Precision(), u"12");
  EXPECT_FALSE(matrix.TakesPrecision());
}

TEST_F(DisplaySettingsModelTest, ThreeTypesTakeAPrecision) {
  struct Row {
    DisplayType type;
    bool takes;
  };
  for (const Row& row :
       {Row{DisplayType::FloatingPoint, false}, Row{DisplayType::FixedPoint, true},
        Row{DisplayType::ScientificNotation, true}, Row{DisplayType::Thousands, false},
        Row{DisplayType::EngineeringNotation, true}}) {
    model.ChooseType(row.type);
    EXPECT_EQ(model.TakesPrecision(), row.takes) << static_cast<int>(row.type);
    EXPECT_EQ(model.Precision(), u"7");
  }
}

TEST_F(DisplaySettingsModelTest, EachPageKeepsItsOwnTypeAndPrecision) {
  model.ChooseType(DisplayType::FixedPoint);
  model.TypePrecision(u"2");
  EXPECT_FALSE(model.TurnTo(DisplayPage::Matrix).has_value());
  EXPECT_EQ(model.Page(), DisplayPage::Matrix);
  EXPECT_EQ(model.Type(), DisplayType::FloatingPoint);
  EXPECT_EQ(model.Precision(), u"12");
  model.ChooseType(DisplayType::ScientificNotation);
  model.TypePrecision(u"15");
  EXPECT_FALSE(model.TurnTo(DisplayPage::Normal).has_value());
  EXPECT_EQ(model.Type(), DisplayType::FixedPoint);
  EXPECT_EQ(model.Precision(), u"2");
  EXPECT_FALSE(model.TurnTo(DisplayPage::Matrix).has_value());
  EXPECT_EQ(model.Type(), DisplayType::ScientificNotation);
  EXPECT_EQ(model.Precision(), u"15");
  EXPECT_EQ(Stored(store), kNothing);
}

TEST_F(DisplaySettingsModelTest, PrecisionIsAWholeNumberFromZeroToFifteen) {
  struct Row {
    std::u16string typed;
    std::int32_t stored;
  };
  for (const Row& row : {Row{u"0", 0}, Row{u"15", 15}, Row{u"07", 7}, Row{u"  3 ", 3},
                         Row{std::u16string(10000, u'0') + u"4", 4}}) {
    DisplaySettingsModel typed(store, DisplayPage::Normal);
    typed.TypePrecision(row.typed);
    EXPECT_FALSE(typed.Accept(store).has_value());
    EXPECT_EQ(Stored(store)[1], row.stored);
  }
}

TEST_F(DisplaySettingsModelTest, AnyOtherPrecisionIsRefusedAndTheLastGoodOneShown) {
  model.TypePrecision(u"5");
  model.TurnTo(DisplayPage::Matrix);
  model.TurnTo(DisplayPage::Normal);
  for (const std::u16string& typed :
       {std::u16string(), std::u16string(u" "), std::u16string(u"16"), std::u16string(u"-1"),
        std::u16string(u"-0"), std::u16string(u"+1"), std::u16string(u"7.0"),
        std::u16string(u"1e1"), std::u16string(u"7 7"), std::u16string(u"0x7"),
        std::u16string(u"seven"), std::u16string(u"٧"), std::u16string(u"7\n"),
        std::u16string(u"4294967303"), std::u16string(u"18446744073709551623"),
        std::u16string(1 << 20, u'9')}) {
    const std::u16string named = typed.substr(0, 30);
    model.TypePrecision(typed);
    ExpectRefusal(model.TurnTo(DisplayPage::Matrix), kPrecisionMessage, DisplayField::Precision);
    EXPECT_EQ(model.Page(), DisplayPage::Normal) << testing::PrintToString(named);
    EXPECT_EQ(model.Precision(), u"5") << testing::PrintToString(named);
    model.TypePrecision(typed);
    ExpectRefusal(model.Accept(store), kPrecisionMessage, DisplayField::Precision);
    EXPECT_EQ(model.Precision(), u"5") << testing::PrintToString(named);
  }
  EXPECT_EQ(Stored(store), kNothing);
}

TEST_F(DisplaySettingsModelTest, ColumnWidthIsAWholeNumberFromTenToFourHundred) {
  struct Row {
    std::u16string typed;
    std::int32_t stored;
  };
  for (const Row& row : {Row{u"10", 10}, Row{u"400", 400}, Row{u" 0060", 60}}) {
    DisplaySettingsModel typed(store, DisplayPage::Matrix);
    typed.TypeColumnWidth(row.typed);
    EXPECT_FALSE(typed.Accept(store).has_value());
    EXPECT_EQ(Stored(store)[7], row.stored);
  }
}

TEST_F(DisplaySettingsModelTest, ARefusedWidthBringsBackBothLastGoodNumbers) {
  for (const char16_t* typed : {u"", u"9", u"401", u"-60", u"60.5", u"wide"}) {
    DisplaySettingsModel matrix(store, DisplayPage::Matrix);
    matrix.TypePrecision(u"3");
    matrix.TypeColumnWidth(typed);
    ExpectRefusal(matrix.TurnTo(DisplayPage::Normal), kWidthMessage, DisplayField::ColumnWidth);
    EXPECT_EQ(matrix.Page(), DisplayPage::Matrix);
    EXPECT_EQ(matrix.Precision(), u"12");
    EXPECT_EQ(matrix.ColumnWidth(), u"60");
    matrix.TypeColumnWidth(typed);
    ExpectRefusal(matrix.Accept(store), kWidthMessage, DisplayField::ColumnWidth);
    EXPECT_EQ(matrix.ColumnWidth(), u"60");
  }
  EXPECT_EQ(Stored(store), kNothing);
}

TEST_F(DisplaySettingsModelTest, TheWidthThatWasGoodLastIsTheOneBroughtBack) {
  model.TurnTo(DisplayPage::Matrix);
  model.TypeColumnWidth(u"80");
  model.TurnTo(DisplayPage::Normal);
  model.TurnTo(DisplayPage::Matrix);
  model.TypeColumnWidth(u"8");
  model.TurnTo(DisplayPage::Normal);
  EXPECT_EQ(model.ColumnWidth(), u"80");
}

TEST_F(DisplaySettingsModelTest, OfTwoWrongNumbersThePrecisionIsNamed) {
  DisplaySettingsModel matrix(store, DisplayPage::Matrix);
  matrix.TypePrecision(u"x");
  matrix.TypeColumnWidth(u"y");
  ExpectRefusal(matrix.Accept(store), kPrecisionMessage, DisplayField::Precision);
  EXPECT_EQ(matrix.Precision(), u"12");
  EXPECT_EQ(matrix.ColumnWidth(), u"60");
}

TEST_F(DisplaySettingsModelTest, ACommaThatCouldBeADecimalOneIsNamed) {
  DisplaySettingsModel matrix(store, DisplayPage::Matrix);
  matrix.TypePrecision(u"1,5");
  ExpectRefusal(matrix.Accept(store),
                u"The comma in \"1,5\" can be read in two ways. Write 1.5 or 15.",
                DisplayField::Precision);
  matrix.TypeColumnWidth(u"6,0");
  ExpectRefusal(matrix.Accept(store),
                u"The comma in \"6,0\" can be read in two ways. Write 6.0 or 60.",
                DisplayField::ColumnWidth);
}

TEST_F(DisplaySettingsModelTest, ARefusalLeavesTheChosenTypeInItsBox) {
  model.ChooseType(DisplayType::FixedPoint);
  model.TypePrecision(u"x");
  model.TurnTo(DisplayPage::Matrix);
  EXPECT_EQ(model.Type(), DisplayType::FixedPoint);
}

TEST_F(DisplaySettingsModelTest, AWrongPrecisionIsRefusedThoughItsBoxIsDisabled) {
  model.ChooseType(DisplayType::FixedPoint);
  model.TypePrecision(u"x");
  model.ChooseType(DisplayType::FloatingPoint);
  ExpectRefusal(model.Accept(store), kPrecisionMessage, DisplayField::Precision);
  EXPECT_FALSE(model.Accept(store).has_value());
  EXPECT_EQ(Stored(store)[0], 0);
  EXPECT_EQ(Stored(store)[1], 7);
}

TEST_F(DisplaySettingsModelTest, AcceptingStoresAllEight) {
  model.ChooseType(DisplayType::EngineeringNotation);
  model.TypePrecision(u"3");
  model.TurnTo(DisplayPage::Matrix);
  model.ChooseType(DisplayType::FixedPoint);
  model.TypePrecision(u"4");
  model.TypeColumnWidth(u"120");
  model.ChooseMatrixRows(10);
  model.ChooseMatrixColumns(1);
  model.ChooseAlignment(CellAlignment::Right);
  EXPECT_EQ(model.MatrixRows(), 10);
  EXPECT_EQ(model.MatrixColumns(), 1);
  EXPECT_EQ(model.Alignment(), CellAlignment::Right);
  EXPECT_FALSE(model.Accept(store).has_value());
  EXPECT_EQ(Stored(store), (std::vector<std::int32_t>{4, 3, 1, 4, 10, 1, 1, 120}));
}

TEST_F(DisplaySettingsModelTest, AcceptingAFirstStartStoresTheDefaults) {
  EXPECT_FALSE(model.Accept(store).has_value());
  EXPECT_EQ(Stored(store), (std::vector<std::int32_t>{3, 7, 0, 12, 3, 3, 0, 60}));
}

TEST_F(DisplaySettingsModelTest, TheExampleFollowsTypeAndPrecisionAtOnce) {
  struct Row {
    DisplayType type;
    std::u16string precision;
    std::u16string example;
  };
  for (const Row& row :
       {Row{DisplayType::FloatingPoint, u"2", u"1234567.891\n0.000123456789"},
        Row{DisplayType::FixedPoint, u"2", u"1234567.89\n0.00"},
        Row{DisplayType::FixedPoint, u"7", u"1234567.8910000\n0.0001235"},
        Row{DisplayType::ScientificNotation, u"0", u"1e+06\n1e-04"},
        Row{DisplayType::ScientificNotation, u"3", u"1.235e+06\n1.235e-04"},
        Row{DisplayType::Thousands, u"2", u"1,234,567.891\n0.000123456789"},
        Row{DisplayType::EngineeringNotation, u"3", u"1.235E+006\n123.457E-006"}}) {
    model.ChooseType(row.type);
    model.TypePrecision(row.precision);
    EXPECT_EQ(model.Example(), row.example);
  }
}

TEST_F(DisplaySettingsModelTest, TheExampleSaysWhatThePrecisionMayBe) {
  model.ChooseType(DisplayType::FixedPoint);
  model.TypePrecision(u"16");
  EXPECT_EQ(model.Example(), kPrecisionMessage);
  model.TypePrecision(u"1");
  EXPECT_EQ(model.Example(), u"1234567.9\n0.0");
}

TEST_F(DisplaySettingsModelTest, TheExampleOfATypeWithoutPrecisionNeedsNone) {
  model.TypePrecision(u"");
  EXPECT_EQ(model.Example(), u"1,234,567.891\n0.000123456789");
}

TEST_F(DisplaySettingsModelTest, TheExampleIsThatOfThePage) {
  EXPECT_EQ(model.Example(), u"1,234,567.891\n0.000123456789");
  model.TurnTo(DisplayPage::Matrix);
  EXPECT_EQ(model.Example(), u"1234567.891\n0.000123456789");
}

TEST_F(DisplaySettingsModelTest, TheLookStandsOnTheNormalPageAndIsStoredWithAllElse) {
  const auto stored = [this](const char* name) {
    return store.Get(SettingKey<std::int32_t>{"Config", name, -1});
  };
  EXPECT_TRUE(model.ShowsLook());
  EXPECT_EQ(model.Look().colours, ColourChoice::System);
  EXPECT_TRUE(model.Look().hasLiveResult);
  model.ChooseLook({ColourChoice::Dark, false});
  EXPECT_FALSE(model.TurnTo(DisplayPage::Matrix));
  EXPECT_FALSE(model.ShowsLook());
  EXPECT_EQ(stored("Colour Scheme"), -1);
  model.TypeColumnWidth(u"9");
  EXPECT_TRUE(model.Accept(store));
  EXPECT_EQ(stored("Colour Scheme"), -1) << "nothing is stored of what was refused";
  EXPECT_FALSE(model.Accept(store));
  EXPECT_EQ(stored("Colour Scheme"), 2);
  EXPECT_EQ(stored("Live Result"), 0);
  const DisplaySettingsModel again(store, DisplayPage::Normal);
  EXPECT_EQ(again.Look().colours, ColourChoice::Dark);
  EXPECT_FALSE(again.Look().hasLiveResult);
}

}  // namespace
}  // namespace kav::display_settings_model_test
