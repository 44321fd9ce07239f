#include "statistics/two_variable_model.h"

#include <utility>

#include "statistics/regression_plot.h"
#include "statistics/statistics_menus.h"

namespace kav {

std::u16string_view TwoVariableModel::Caption(StatisticsKey key) const {
  return key == StatisticsKey::Model ? ModelCaption(model_) : StatisticsModel::Caption(key);
}

bool TwoVariableModel::IsVisible(StatisticsKey key) const {
  switch (key) {
    case StatisticsKey::Correlation:
    case StatisticsKey::EstimateX:
      return model_ != RegressionModel::Quadratic;
    case StatisticsKey::C:
    case StatisticsKey::EstimateX1:
    case StatisticsKey::EstimateX2:
      return model_ == RegressionModel::Quadratic;
    default:
      return StatisticsModel::IsVisible(key);
  }
}

bool TwoVariableModel::IsEnabled(StatisticsKey key) const {
  if (key == StatisticsKey::Correlation && model_ != RegressionModel::Linear) return false;
  return StatisticsModel::IsEnabled(key);
}

Menu TwoVariableModel::MenuOf(StatisticsKey key) const {
  return key == StatisticsKey::Model ? BuildModelMenu() : StatisticsModel::MenuOf(key);
}

StatisticsRequest TwoVariableModel::Choose(StatisticsKey key, int id) {
  if (key != StatisticsKey::Model) return StatisticsModel::Choose(key, id);
  if (const auto model = ModelOfItem(id)) {
    model_ = *model;
    Forget();
  }
  return Nothing{};
}

StatisticsRequest TwoVariableModel::PressResult(StatisticsKey key) {
  switch (key) {
    case StatisticsKey::Model:
      return ShowMenu<StatisticsKey>{key};
    case StatisticsKey::Plot:
      return Plot();
    case StatisticsKey::EstimateX:
    case StatisticsKey::EstimateX1:
    case StatisticsKey::EstimateX2:
    case StatisticsKey::EstimateY:
      return Estimate(key);
    case StatisticsKey::Products:
      return Show(SumUp(List(), RegressionModel::Linear).Products());
    case StatisticsKey::Correlation:
      return Show(Fitted().correlation);
    case StatisticsKey::A:
      return Show(Fitted().coefficients.a);
    case StatisticsKey::B:
      return Show(Fitted().coefficients.b);
    case StatisticsKey::C:
      return Show(Fitted().coefficients.c);
    default:
      return StatisticsModel::PressResult(key);
  }
}

const TwoVariableModel::Fit& TwoVariableModel::Fitted() {
  if (!fit_) {
    const RegressionSums sums = SumUp(List(), model_);
    const std::int32_t total = List().Total();
    fit_ = Fit{sums.Fit(total), sums.Correlation(total)};
  }
  return *fit_;
}

StatisticsRequest TwoVariableModel::Estimate(StatisticsKey key) {
  auto typed = ReadTypedRow(Fields(), Shape(), Angle());
  if (!typed) return std::move(typed).error();
  const Coefficients& fitted = Fitted().coefficients;
  switch (key) {
    case StatisticsKey::EstimateX:
      return Show(kav::EstimateX(model_, fitted, typed->y));
    case StatisticsKey::EstimateX1:
      return Show(EstimateQuadraticX(fitted, typed->y).first);
    case StatisticsKey::EstimateX2:
      return Show(EstimateQuadraticX(fitted, typed->y).second);
    default:
      return Show(kav::EstimateY(model_, fitted, typed->x));
  }
}

StatisticsRequest TwoVariableModel::Plot() {
  auto plot = BuildRegressionPlot(List(), {model_, Fitted().coefficients}, Format(), Angle());
  if (!plot) return TellStop{std::move(plot).error()};
  return OpenGraph{*std::move(plot)};
}

}  // namespace kav
