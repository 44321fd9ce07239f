// The screen of two-variable statistics without its widgets: a statistics screen with regression.
#pragma once

#include <optional>
#include <string_view>

#include "statistics/regression.h"
#include "statistics/statistics_model.h"

namespace kav {

class TwoVariableModel final : public StatisticsModel {
 public:
  explicit TwoVariableModel(SettingsStore& store)
      : StatisticsModel(DataShape::TwoVariables, store) {}

  std::u16string_view Caption(StatisticsKey key) const override;
  bool IsVisible(StatisticsKey key) const override;
  bool IsEnabled(StatisticsKey key) const override;

  Menu MenuOf(StatisticsKey key) const override;
  StatisticsRequest Choose(StatisticsKey key, int id) override;

 private:
  /// The curve fitted last, kept until the rows or the model change. Sorting keeps it, although the
  /// last digits of sums depend on the order of the rows.
  struct Fit {
    Coefficients coefficients;
    double correlation;
  };

  StatisticsRequest PressResult(StatisticsKey key) override;
  void Forget() override { fit_.reset(); }
  const Fit& Fitted();
  StatisticsRequest Estimate(StatisticsKey key);
  StatisticsRequest Plot();

  RegressionModel model_ = RegressionModel::Linear;
  std::optional<Fit> fit_;
};

}  // namespace kav
