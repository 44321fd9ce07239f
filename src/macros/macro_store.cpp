#include "macros/macro_store.h"

#include <algorithm>

#include "macros/macros_texts.h"
#include "settings/keys.h"

namespace kav {

int MacroStore::Count() const {
  return std::clamp(store_.Get(kMacroCount), 0, kCapacity);
}

std::optional<int> MacroStore::Find(std::string_view name) const {
  const int count = Count();
  for (int i = 0; i < count; ++i) {
    if (Name(i) == name) return i;
  }
  return std::nullopt;
}

std::string MacroStore::Name(int index) const {
  return store_.Get(MacroName(index));
}

VariableType MacroStore::Type(int index) const {
  const std::string type = store_.Get(MacroType(index));
  if (type == kMacroTypeX) return VariableType::X;
  if (type == kMacroTypeXY) return VariableType::XY;
  return VariableType::XYZ;
}

std::string MacroStore::Formula(int index) const {
  return store_.Get(MacroFormula(index));
}

}  // namespace kav
