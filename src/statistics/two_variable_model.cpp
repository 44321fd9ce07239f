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
    default:
      Show(ValueOf(key));
      return Nothing{};
  }
}

double TwoVariableModel::ValueOf(StatisticsKey key) {
  if (const auto shown = MomentOf(key)) return MomentOf(List(), shown->variable, shown->moment);
  switch (key) {
    case StatisticsKey::Products:
      return SumUp(List(), RegressionModel::Linear).Products();
    case StatisticsKey::Correlation:
      return Fitted().correlation;
    case StatisticsKey::A:
      return Fitted().coefficients.a;
    case StatisticsKey::B:
      return Fitted().coefficients.b;
    default:
      return Fitted().coefficients.c;
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
  const auto read = ReadFields();
  if (const auto* refused = std::get_if<FieldRefusal>(&read)) return *refused;
  const auto& typed = std::get<FieldNumbers>(read);
  const Coefficients& fitted = Fitted().coefficients;
  switch (key) {
    case StatisticsKey::EstimateX:
      Show(kav::EstimateX(model_, fitted, typed.y));
      break;
    case StatisticsKey::EstimateX1:
      Show(EstimateQuadraticX(fitted, typed.y).first);
      break;
    case StatisticsKey::EstimateX2:
      Show(EstimateQuadraticX(fitted, typed.y).second);
      break;
    default:
      Show(kav::EstimateY(model_, fitted, typed.x));
      break;
  }
  return Nothing{};
}

StatisticsRequest TwoVariableModel::Plot() {
  auto plot = BuildRegressionPlot(List(), {model_, Fitted().coefficients}, Format(), Angle());
  if (!plot) return TellStop{std::move(plot).error()};
  return OpenGraph{*std::move(plot)};
}

}  // namespace kav
