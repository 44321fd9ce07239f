#include "memory/memory_variables_model.h"

#include <utility>

#include "common/number_text.h"
#include "memory/memory_texts.h"

namespace kav {

MemoryVariablesModel::MemoryVariablesModel(VariablesMode mode, SettingsStore& settings)
    : mode_(std::move(mode)), variables_(settings) {
  settings.Refresh();
}

std::vector<std::u16string> MemoryVariablesModel::Lines() const {
  std::vector<std::u16string> lines;
  lines.reserve(MemoryVariables::kCount);
  for (int i = 0; i < MemoryVariables::kCount; ++i) lines.push_back(variables_.Line(i));
  return lines;
}

void MemoryVariablesModel::Select(std::optional<int> line) {
  const bool isThere = line && *line >= 0 && *line < MemoryVariables::kCount;
  selected_ = isThere ? line : std::nullopt;
}

std::u16string_view MemoryVariablesModel::ActionCaption() const {
  return std::holds_alternative<StoreMode>(mode_) ? kStoreCaption : kRecallCaption;
}

std::u16string_view MemoryVariablesModel::ActionHelp() const {
  return std::holds_alternative<StoreMode>(mode_) ? kStoreHelp : kRecallHelp;
}

VariableOutcome MemoryVariablesModel::Act() {
  if (!selected_) return VariableMissing{kNoVariableSelected};
  const auto* store = std::get_if<StoreMode>(&mode_);
  if (store == nullptr) return VariableRecalled{Widen(variables_.Get(*selected_))};
  variables_.Set(*selected_, Narrow(store->value));
  return VariableStored{};
}

std::optional<std::u16string_view> MemoryVariablesModel::ClearQuestion() const {
  if (!selected_) return std::nullopt;
  return kClearQuestion;
}

void MemoryVariablesModel::Clear() {
  if (selected_) variables_.Clear(*selected_);
}

std::u16string_view MemoryVariablesModel::ClearAllQuestion() const {
  return kClearAllQuestion;
}

void MemoryVariablesModel::ClearAll() {
  variables_.ClearAll();
}

}  // namespace kav
