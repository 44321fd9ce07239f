#include "statistics/statistics_menus.h"

#include <algorithm>
#include <array>
#include <string>

#include "line/line_texts.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

struct ModelChoice {
  RegressionModel model;
  std::u16string_view text;
  std::u16string_view caption;
};

constexpr std::array kModelChoices{
    ModelChoice{RegressionModel::Linear, kLinearItem, kLinearCaption},
    ModelChoice{RegressionModel::Power, kPowerItem, kPowerCaption},
    ModelChoice{RegressionModel::Inverse, kInverseItem, kInverseCaption},
    ModelChoice{RegressionModel::Logarithmic, kLogarithmicItem, kLogarithmicCaption},
    ModelChoice{RegressionModel::Exponential, kExponentialItem, kExponentialCaption},
    ModelChoice{RegressionModel::Quadratic, kQuadraticItem, kQuadraticCaption},
};

const ModelChoice& ChoiceOf(RegressionModel model) {
  return *std::find_if(kModelChoices.begin(), kModelChoices.end(),
                       [model](const ModelChoice& choice) { return choice.model == model; });
}

}  // namespace

Menu BuildVariablesMenu(LastResult result) {
  Menu menu;
  if (result == LastResult::CanBeStored) {
    menu.push_back({variables_item::kStore, std::u16string(kStoreVariable)});
  }
  menu.push_back({variables_item::kRecall, std::u16string(kRecallVariable)});
  return menu;
}

Menu BuildModelMenu() {
  Menu menu;
  for (const ModelChoice& choice : kModelChoices) {
    menu.push_back({static_cast<int>(choice.model), std::u16string(choice.text)});
  }
  return menu;
}

std::optional<RegressionModel> ModelOfItem(int id) {
  for (const ModelChoice& choice : kModelChoices) {
    if (static_cast<int>(choice.model) == id) return choice.model;
  }
  return std::nullopt;
}

std::u16string_view ModelItem(RegressionModel model) {
  return ChoiceOf(model).text;
}

std::u16string_view ModelCaption(RegressionModel model) {
  return ChoiceOf(model).caption;
}

std::vector<FaceText> CaptionsOf(const StatisticsKeyRow& row) {
  if (row.key != StatisticsKey::Model) return {{row.caption, row.description}};
  std::vector<FaceText> captions;
  captions.reserve(kModelChoices.size());
  for (const ModelChoice& choice : kModelChoices) {
    captions.push_back({choice.caption, row.description});
  }
  return captions;
}

}  // namespace kav
