#include "statistics/one_variable_model.h"

namespace kav {

StatisticsRequest OneVariableModel::PressResult(StatisticsKey key) {
  if (const auto shown = MomentOf(key)) Show(MomentOf(List(), shown->variable, shown->moment));
  return Nothing{};
}

}  // namespace kav
