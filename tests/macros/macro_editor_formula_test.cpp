// What helps to type the formula of a macro.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "macros/macro_editor_model.h"
#include "support/macro_fields.h"
#include "support/macro_function_rows.h"
#include "support/marked_line.h"

namespace kav::macro_editor_formula_test {
namespace {

using test::Fields;
using test::Marked;

class MacroEditorFormula : public testing::Test {
 protected:
  MemorySettingsStore store_;
};

TEST_F(MacroEditorFormula, FunctionsAreOfferedInTheirOrder) {
  EXPECT_EQ(MacroEditorModel::FunctionItems(),
            (PopUpTexts{u"ABS(X)",  u"ACOS(X)", u"ASIN(X)", u"ATAN(X)", u"COS(X)",  u"COSH(X)",
                        u"EXP(X)",  u"FRAC(X)", u"INT(X)",  u"LN(X)",   u"LOG(X)",  u"SIN(X)",
                        u"SINH(X)", u"SQRT(X)", u"TAN(X)",  u"TANH(X)", u"XthR(X)", u"",
                        u"%",       u"X!",      u"nPr",     u"nCr",     u"",        u"Pi"}));
}

TEST_F(MacroEditorFormula, EachFunctionEditsTheFormulaAsItsKeyDoes) {
  MacroEditorModel model(store_);
  model.New();
  const PopUpTexts items = MacroEditorModel::FunctionItems();
  const auto after = [&model](std::u16string_view formula, std::size_t item) {
    model.Take(Fields(u"f", VariableType::X, formula));
    model.ChooseFunction(item);
    EXPECT_EQ(model.Fields().name, u"f");
    return Marked(model.Fields().formula);
  };
  for (const test::MacroFunctionRow& row : test::kMacroFunctionRows) {
    const auto item =
        static_cast<std::size_t>(std::find(items.begin(), items.end(), row.item) - items.begin());
    ASSERT_LT(item, items.size());
    EXPECT_EQ(after(u"1+|2", item), row.bare);
    EXPECT_EQ(after(u"1+[x]2", item), row.selected);
  }
  for (std::size_t i = 0; i <= items.size(); ++i) {
    // Neither a separator nor what is behind the last item writes anything.
    if (i < items.size() && !items[i].empty()) continue;
    EXPECT_EQ(after(u"1+[x]2", i), u"1+[x]2") << i;
  }
}

TEST_F(MacroEditorFormula, VariablesAreOfferedByTheChosenType) {
  struct Row {
    std::optional<VariableType> type;
    PopUpTexts items;
  };
  MacroEditorModel model(store_);
  model.New();
  for (const Row& row :
       {Row{VariableType::X, {u"X"}}, Row{VariableType::XY, {u"X", u"Y"}},
        Row{VariableType::XYZ, {u"X", u"Y", u"Z"}}, Row{std::nullopt, {u"X", u"Y", u"Z"}}}) {
    model.Take(Fields(u"f", row.type, u"|"));
    EXPECT_EQ(model.VariableItems(), row.items);
    model.ChooseVariable(row.items.size());
    EXPECT_EQ(Marked(model.Fields().formula), u"|");
  }
}

TEST_F(MacroEditorFormula, VariablesReplaceTheSelectionInLowerCase) {
  MacroEditorModel model(store_);
  model.New();
  const std::u16string_view letters[] = {u"x", u"y", u"z"};
  for (std::size_t i = 0; i < 3; ++i) {
    model.Take(Fields(u"f", VariableType::XYZ, u"1+[23]*2"));
    model.ChooseVariable(i);
    EXPECT_EQ(Marked(model.Fields().formula), u"1+" + std::u16string(letters[i]) + u"|*2");
  }
}

TEST_F(MacroEditorFormula, AValueReplacesTheSelectionAsItIs) {
  MacroEditorModel model(store_);
  model.New();
  model.Take(Fields(u"f", VariableType::X, u"x*[2]"));
  model.InsertIntoFormula(u"1.5e-7");
  EXPECT_EQ(Marked(model.Fields().formula), u"x*1.5e-7|");
}

}  // namespace
}  // namespace kav::macro_editor_formula_test
