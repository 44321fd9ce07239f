#include "macros/macro_saving.h"

#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "engine/formula_checker.h"
#include "macros/macros_texts.h"
#include "settings/keys.h"

namespace kav {
namespace {

using SaveRefusal = Refusal<MacroField>;

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

/// `typed` without blanks around it. What is pasted brings line breaks and tabs along, which mean
/// no more than blanks do.
std::u16string Cleaned(std::u16string text) {
  return std::u16string(TrimBlanks(OnOneLine(std::move(text))));
}

bool IsUsedByAnother(std::string_view name, std::optional<int> own, const MacroStore& macros) {
  for (int i = 0; i < macros.Count(); ++i) {
    if (i != own && macros.At(i).name == name) return true;
  }
  return false;
}

std::optional<SaveRefusal> CheckName(const std::u16string& name, std::optional<int> own,
                                     const MacroStore& macros) {
  if (name.empty()) return SaveRefusal{std::u16string(kMacroNameIsNull), MacroField::Name};
  // They would end the name in a call.
  if (name.find_first_of(u"():") != std::u16string::npos) {
    return SaveRefusal{std::u16string(kMacroNameHasMarks), MacroField::Name};
  }
  if (IsUsedByAnother(Narrow(name), own, macros)) {
    return SaveRefusal{MacroExistsAlready(name), MacroField::Name};
  }
  return std::nullopt;
}

std::optional<SaveRefusal> CheckText(const std::u16string& formula, VariableType type) {
  const auto refuse = [](std::u16string text) {
    return SaveRefusal{std::move(text), MacroField::Formula};
  };
  if (formula.empty()) return refuse(std::u16string(kMacroFormulaIsNull));
  if (formula.size() > kLongestFormula) {
    return refuse(MacroFormulaIsTooLong(formula.size(), kLongestFormula));
  }
  const auto checked = CheckFormula(Narrow(formula), type);
  if (!checked) return refuse(Widen(checked.error().message));
  return std::nullopt;
}

/// SaveMacro, within a change of `settings`.
Expected<int, SaveRefusal> Save(const TypedMacro& typed, const std::optional<MacroIdentity>& edited,
                                SettingsStore& settings) {
  const MacroStore macros(settings);
  if (macros.Count() >= MacroStore::kCapacity) {
    return SaveRefusal{MaximumOfMacros(MacroStore::kCapacity), MacroField::None};
  }
  const auto place = edited ? PlaceOf(*edited, macros) : std::nullopt;
  const std::u16string name = Cleaned(typed.name);
  if (auto refusal = CheckName(name, place, macros)) return *std::move(refusal);
  if (!typed.type) return SaveRefusal{std::u16string(kMacroTypeIsNull), MacroField::Type};
  const std::u16string formula = Cleaned(typed.formula);
  if (auto refusal = CheckText(formula, *typed.type)) return *std::move(refusal);

  const int count = macros.Count();
  const int index = place.value_or(count);
  WriteRecord({Narrow(name), std::string(MacroTypeText(*typed.type)), Narrow(formula)}, index,
              settings);
  settings.Set(kMacroCount, std::max(count, index + 1));
  return index;
}

bool Remove(const MacroIdentity& macro, SettingsStore& settings) {
  const MacroStore macros(settings);
  const auto place = PlaceOf(macro, macros);
  if (!place) return false;
  const int last = macros.Count() - 1;
  for (int i = *place; i < last; ++i) WriteRecord(ReadRecord(settings, i + 1), i, settings);
  WriteRecord({}, last, settings);
  settings.Set(kMacroCount, last);
  return true;
}

}  // namespace

std::optional<int> PlaceOf(const MacroIdentity& macro, const MacroStore& macros) {
  const bool isInside = macro.index >= 0 && macro.index < macros.Count();
  if (isInside && macros.At(macro.index).name == macro.name) return macro.index;
  return macros.Find(macro.name);
}

Expected<int, Refusal<MacroField>> SaveMacro(const TypedMacro& typed,
                                             const std::optional<MacroIdentity>& edited,
                                             SettingsStore& settings) {
  std::optional<Expected<int, SaveRefusal>> saved;
  settings.Change([&] { saved.emplace(Save(typed, edited, settings)); });
  return *std::move(saved);
}

bool RemoveMacro(const MacroIdentity& macro, SettingsStore& settings) {
  bool isRemoved = false;
  settings.Change([&] { isRemoved = Remove(macro, settings); });
  return isRemoved;
}

}  // namespace kav
