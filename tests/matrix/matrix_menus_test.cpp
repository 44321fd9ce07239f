#include "matrix/matrix_menus.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/number_text.h"
#include "macros/line_evaluator.h"

namespace kav::matrix_menus_test {
namespace {

std::vector<std::u16string> TextsOf(const Menu& menu) {
  std::vector<std::u16string> texts;
  for (const MenuItem& item : menu) texts.push_back(item.text);
  return texts;
}

TEST(MatrixMenus, FunctionsAreThoseOfNumberExpressions) {
  EXPECT_EQ(TextsOf(BuildFunctionMenu()),
            (std::vector<std::u16string>{u"sin", u"cos", u"tan", u"asin", u"acos", u"atan", u"sinh",
                                         u"cosh", u"tanh", u"log", u"ln", u"exp", u"sqrt", u"abs",
                                         u"int", u"frac"}));
}

TEST(MatrixMenus, FunctionsAreWrittenAsTheyAreRead) {
  MemorySettingsStore store;
  const MacroStore macros(store);
  for (const MenuItem& item : BuildFunctionMenu()) {
    EXPECT_EQ(FunctionPrefix(item.id), item.text + u"(");
    const std::string call = Narrow(FunctionPrefix(item.id)) + "0.5)";
    EXPECT_TRUE(EvaluateLine(call, {AngleUnit::Degrees, BaseMode::Decimal}, macros)) << call;
  }
}

TEST(MatrixMenus, ToolsInsertFromElsewhere) {
  EXPECT_EQ(BuildToolsMenu(),
            (Menu{{1, u"Constants"}, {2, u"Recall MemVar"}, {3, u"Converter"}, {4, u"Macro"}}));
}

TEST(MatrixMenus, OperationsAreWrittenWithAnOpenParenthesis) {
  struct Row {
    std::u16string_view text;
    std::u16string_view written;
  };
  const Row rows[] = {{u"Inverse", u"inverse("},
                      {u"Transpose", u"transpose("},
                      {u"Linear Equation", u"linearequation("},
                      {u"Determinant", u"determinant("},
                      {u"Triangular", u"triangular("}};
  const Menu menu = BuildOperationMenu();
  ASSERT_EQ(menu.size(), std::size(rows));
  for (std::size_t i = 0; i < menu.size(); ++i) {
    EXPECT_EQ(menu[i].text, rows[i].text);
    EXPECT_EQ(OperationText(menu[i].id), rows[i].written);
  }
}

TEST(MatrixMenus, MatrixToolsStandInThreeGroups) {
  const Menu menu{{1, u"M Cut"}, {2, u"M Copy"},          {3, u"M Paste"},
                  {0, u""},      {4, u"M Save"},          {5, u"M Load"},
                  {0, u""},      {6, u"Reset Col Width"}, {7, u"Autofit Col Width"}};
  for (int index = 0; index < 3; ++index) EXPECT_EQ(BuildMatrixToolsMenu(index), menu) << index;
}

TEST(MatrixMenus, AnswerIsNeitherCutNorPastedNorLoaded) {
  EXPECT_EQ(BuildMatrixToolsMenu(3), (Menu{{2, u"M Copy"},
                                           {0, u""},
                                           {4, u"M Save"},
                                           {0, u""},
                                           {6, u"Reset Col Width"},
                                           {7, u"Autofit Col Width"}}));
}

TEST(MatrixMenus, VariablesAreTheFourMatrices) {
  EXPECT_EQ(BuildVariableMenu(), (Menu{{1, u"[M1]"}, {2, u"[M2]"}, {3, u"[M3]"}, {4, u"[M Ans]"}}));
}

}  // namespace
}  // namespace kav::matrix_menus_test
