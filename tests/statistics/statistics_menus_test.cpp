#include "statistics/statistics_menus.h"

#include <gtest/gtest.h>

#include "common/number_text.h"

namespace kav::statistics_menus_test {
namespace {

TEST(StatisticsMenus, ResultCanBeStoredAboveRecalling) {
  EXPECT_EQ(BuildVariablesMenu(LastResult::CanBeStored),
            (Menu{{1, u"Store MemVar"}, {2, u"ReCall MemVar"}}));
}

TEST(StatisticsMenus, WithoutAResultThereIsOnlyRecalling) {
  EXPECT_EQ(BuildVariablesMenu(LastResult::CannotBeStored), (Menu{{2, u"ReCall MemVar"}}));
}

TEST(StatisticsMenus, ModelsHaveTheirNumbers) {
  EXPECT_EQ(BuildModelMenu(), (Menu{{1, u"Linear : A*X+B"},
                                    {2, u"Power : A*X^B"},
                                    {3, u"Inverse : A/X+B"},
                                    {4, u"Logarithmic : A*ln(X)+B"},
                                    {5, u"Exponential : A*exp(B*X)"},
                                    {6, u"Quadratic : A*X^2+B*X+C"}}));
}

TEST(StatisticsMenus, ItemsStandForModels) {
  struct Row {
    int id;
    RegressionModel model;
    std::u16string_view caption;
  };
  for (const Row& row :
       {Row{1, RegressionModel::Linear, u"Lin"}, Row{2, RegressionModel::Power, u"Pow"},
        Row{3, RegressionModel::Inverse, u"Inv"}, Row{4, RegressionModel::Logarithmic, u"Log"},
        Row{5, RegressionModel::Exponential, u"Exp"},
        Row{6, RegressionModel::Quadratic, u"Quad"}}) {
    EXPECT_EQ(ModelOfItem(row.id), row.model) << row.id;
    EXPECT_EQ(ModelCaption(row.model), row.caption) << row.id;
  }
  for (const int id : {-1, 0, 7, 1000}) EXPECT_FALSE(ModelOfItem(id)) << id;
}

}  // namespace
}  // namespace kav::statistics_menus_test
