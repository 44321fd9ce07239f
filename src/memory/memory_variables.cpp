#include "memory/memory_variables.h"

#include "common/number_text.h"
#include "memory/memory_texts.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// What a cleared variable is stored as; it is not removed.
constexpr std::string_view kCleared = "0";

std::u16string NumberShown(int index) {
  const std::u16string number = Widen(PrintInteger(index + 1));
  return number.size() < 2 ? u"0" + number : number;
}

}  // namespace

std::string MemoryVariables::Get(int index) const {
  return settings_.Get(MemoryVariable(index));
}

void MemoryVariables::Set(int index, std::string_view value) {
  settings_.Change([&] { settings_.Set(MemoryVariable(index), value); });
}

void MemoryVariables::Clear(int index) {
  Set(index, kCleared);
}

void MemoryVariables::ClearAll() {
  settings_.Change([this] {
    for (int i = 0; i < kCount; ++i) settings_.Set(MemoryVariable(i), kCleared);
  });
}

std::u16string MemoryVariables::Name(int index) {
  return std::u16string(kVariablePrefix) + NumberShown(index);
}

std::u16string MemoryVariables::Line(int index) const {
  std::u16string line = Name(index);
  line += kVariableSeparator;
  line += Widen(Get(index));
  return line;
}

}  // namespace kav
