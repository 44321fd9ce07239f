#include "macros/macro_store.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "common/number_text.h"
#include "engine/fold_case.h"
#include "macros/macros_texts.h"
#include "settings/keys.h"

namespace kav {
namespace {

VariableType TypeOf(std::string_view text) {
  if (text == kMacroTypeX) return VariableType::X;
  if (text == kMacroTypeXY) return VariableType::XY;
  return VariableType::XYZ;
}

Macro StoredMacro(const SettingsStore& settings, int index) {
  return {settings.Get(MacroName(index)), TypeOf(settings.Get(MacroType(index))),
          settings.Get(MacroFormula(index))};
}

bool IsEmpty(const Macro& macro) {
  return macro.name.empty() && macro.formula.empty();
}

/// A text that cannot be cut into tokens is an invalid formula; a wrong order of tokens is an error
/// of the calculation itself.
Expected<CheckedFormula, std::string> Check(const Macro& macro) {
  const auto tokens = TokenizeFormula(FoldCase(macro.formula, BaseMode::Decimal), macro.type);
  if (!tokens) return std::string(kMacroFormulaInvalid);
  auto formula = CheckTokens(*tokens);
  if (!formula) return std::move(formula).error().message;
  return *std::move(formula);
}

}  // namespace

const std::vector<MacroStore::Entry>& MacroStore::All() const {
  if (revision_ == settings_.Revision()) return entries_;
  entries_.clear();
  const int count = std::clamp(settings_.Get(kMacroCount), 0, kCapacity);
  for (int i = 0; i < kCapacity; ++i) {
    Macro macro = StoredMacro(settings_, i);
    if (i >= count && macro.name.empty()) break;
    entries_.push_back({std::move(macro), nullptr});
  }
  while (!entries_.empty() && IsEmpty(entries_.back().macro)) entries_.pop_back();
  // Reading may have been what loaded the settings, and so count as a change.
  revision_ = settings_.Revision();
  return entries_;
}

std::optional<int> MacroStore::Find(std::string_view name) const {
  const auto& all = All();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [name](const Entry& entry) { return entry.macro.name == name; });
  if (found == all.end()) return std::nullopt;
  return static_cast<int>(found - all.begin());
}

const Expected<CheckedFormula, std::string>& MacroStore::Checked(int index) const {
  const Entry& entry = All()[static_cast<std::size_t>(index)];
  if (!entry.checked) {
    entry.checked = std::make_unique<Expected<CheckedFormula, std::string>>(Check(entry.macro));
  }
  return *entry.checked;
}

std::string_view MacroTypeText(VariableType type) {
  constexpr std::array kTexts{kMacroTypeX, kMacroTypeXY, kMacroTypeXYZ};
  return kTexts[static_cast<std::size_t>(type)];
}

std::u16string MacroLabel(const Macro& macro) {
  constexpr std::array kArguments{kMacroArgumentsX, kMacroArgumentsXY, kMacroArgumentsXYZ};
  return Widen(macro.name).append(kArguments[static_cast<std::size_t>(macro.type)]);
}

}  // namespace kav
