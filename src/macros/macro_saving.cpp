#include "macros/macro_saving.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "macros/macros_texts.h"
#include "settings/stored_list_texts.h"

namespace kav {
namespace {

/// A macro's three texts as they stand in the settings.
struct Record {
  std::string name;
  std::string type;
  std::string formula;
};

Record ReadRecord(const SettingsStore& settings, int index) {
  return {settings.Get(MacroName(index)), settings.Get(MacroType(index)),
          settings.Get(MacroFormula(index))};
}

void WriteRecord(const Record& record, int index, SettingsStore& settings) {
  settings.Set(MacroName(index), record.name);
  settings.Set(MacroType(index), record.type);
  settings.Set(MacroFormula(index), record.formula);
}

std::optional<MacroRefusal> CheckName(const std::u16string& name,
                                      const std::vector<Macro>& others) {
  const auto refuse = [](std::u16string text) {
    return MacroRefusal{std::move(text), MacroField::Name};
  };
  if (name.empty()) return refuse(std::u16string(kMacroNameIsNull));
  // They would end the name in a call.
  if (name.find_first_of(u"():") != std::u16string::npos) {
    return refuse(std::u16string(kMacroNameHasMarks));
  }
  const bool isTaken =
      std::any_of(others.begin(), others.end(),
                  [own = Narrow(name)](const Macro& macro) { return macro.name == own; });
  if (isTaken) return refuse(ExistsAlready(name));
  return std::nullopt;
}

std::optional<MacroRefusal> CheckText(const std::u16string& formula, VariableType type) {
  const auto refuse = [](std::u16string text) {
    return MacroRefusal{std::move(text), MacroField::Formula};
  };
  if (formula.empty()) return refuse(std::u16string(kMacroFormulaIsNull));
  if (formula.size() > kLongestFormula) {
    return refuse(MacroFormulaIsTooLong(formula.size(), kLongestFormula));
  }
  const auto checked = CheckFormula(Narrow(formula), type);
  if (!checked) return refuse(Widen(checked.error().message));
  return std::nullopt;
}

}  // namespace

std::u16string MacroTraits::FullText() {
  return MaximumOfMacros(kCapacity);
}

std::vector<Macro> MacroTraits::Load(const SettingsStore& settings) {
  const MacroStore stored(settings);
  const int count = stored.Count();
  std::vector<Macro> macros;
  macros.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) macros.push_back(stored.At(i));
  return macros;
}

Expected<Macro, MacroRefusal> MacroTraits::Check(const TypedMacro& typed,
                                                 const std::vector<Macro>& others) {
  const std::u16string name = Cleaned(typed.name);
  if (auto refusal = CheckName(name, others)) return *std::move(refusal);
  if (!typed.type) return MacroRefusal{std::u16string(kMacroTypeIsNull), MacroField::Type};
  const std::u16string formula = Cleaned(typed.formula);
  if (auto refusal = CheckText(formula, *typed.type)) return *std::move(refusal);
  return Macro{Narrow(name), *typed.type, Narrow(formula)};
}

void MacroTraits::Write(const Macro& macro, int index, SettingsStore& settings) {
  WriteRecord({macro.name, std::string(MacroTypeText(macro.type)), macro.formula}, index, settings);
}

void MacroTraits::CloseGap(const std::vector<Macro>& stored, int removed, SettingsStore& settings) {
  // The texts as they stand there, not as they are read: no type may become another text.
  const int last = static_cast<int>(stored.size()) - 1;
  for (int i = removed; i < last; ++i) WriteRecord(ReadRecord(settings, i + 1), i, settings);
  WriteRecord({}, last, settings);
}

Expected<int, MacroRefusal> SaveMacro(const TypedMacro& typed,
                                      const std::optional<StoredIdentity>& edited,
                                      SettingsStore& settings) {
  return SaveEntry<MacroTraits>(typed, edited, settings);
}

bool RemoveMacro(const StoredIdentity& macro, SettingsStore& settings) {
  return RemoveEntry<MacroTraits>(macro, settings);
}

}  // namespace kav
