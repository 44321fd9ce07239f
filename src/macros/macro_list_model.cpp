#include "macros/macro_list_model.h"

namespace kav {

MacroListModel::MacroListModel(SettingsStore& settings) : settings_(settings) {
  settings.Refresh();
  Reread();
  Select(0);
}

std::vector<std::u16string> MacroListModel::Labels() const {
  std::vector<std::u16string> labels;
  labels.reserve(macros_.size());
  for (const Macro& macro : macros_) labels.push_back(MacroLabel(macro));
  return labels;
}

void MacroListModel::Select(std::optional<int> place) {
  const bool isThere = place && *place >= 0 && *place < Count();
  selected_ = isThere ? place : std::nullopt;
}

const Macro* MacroListModel::SelectedMacro() const {
  return selected_ ? &macros_[static_cast<std::size_t>(*selected_)] : nullptr;
}

std::optional<MacroIdentity> MacroListModel::SelectedIdentity() const {
  if (!selected_) return std::nullopt;
  return MacroIdentity{*selected_, SelectedMacro()->name};
}

void MacroListModel::Reread() {
  const auto selected = SelectedIdentity();
  const MacroStore stored(settings_);
  macros_.clear();
  for (int i = 0; i < stored.Count(); ++i) macros_.push_back(stored.At(i));
  Select(selected ? PlaceOf(*selected, stored) : std::nullopt);
}

}  // namespace kav
