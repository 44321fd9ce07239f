// The screen of one-variable statistics without its pixels.
#pragma once

#include "statistics/statistics_model.h"

namespace kav {

class OneVariableModel final : public StatisticsModel {
 public:
  explicit OneVariableModel(SettingsStore& store)
      : StatisticsModel(DataShape::OneVariable, store) {}

 private:
  StatisticsRequest PressResult(StatisticsKey key) override;
};

}  // namespace kav
