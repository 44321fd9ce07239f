#include "plotter/equation_list.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "common/number_text.h"
#include "plotter/plotter_texts.h"
#include "settings/keys.h"

namespace kav {

EquationList EquationList::Load(const SettingsStore& store) {
  EquationList list;
  const int count = std::clamp(store.Get(kEquationCount), 0, static_cast<int>(kCapacity));
  for (int i = 0; i < count; ++i) {
    std::u16string equation = Widen(store.Get(StoredEquation(i)));
    if (!equation.empty()) list.equations_.push_back(std::move(equation));
  }
  list.Select(0);
  return list;
}

void EquationList::Save(SettingsStore& store) const {
  store.Set(kEquationCount, static_cast<std::int32_t>(equations_.size()));
  int index = 0;
  for (const std::u16string& equation : equations_) {
    store.Set(StoredEquation(index++), Narrow(equation));
  }
  // What was deleted is not to be found in the settings any more.
  for (; index < static_cast<int>(kCapacity); ++index) {
    const NumberedKey rest = StoredEquation(index);
    if (!store.Get(rest).empty()) store.Set(rest, {});
  }
}

bool EquationList::Holds(std::u16string_view equation) const {
  return std::find(equations_.begin(), equations_.end(), equation) != equations_.end();
}

void EquationList::Select(std::size_t place) {
  if (place < equations_.size()) selected_ = place;
}

void EquationList::Add(std::u16string equation) {
  if (IsFull()) return;
  equations_.push_back(std::move(equation));
  selected_ = equations_.size() - 1;
}

void EquationList::DeleteSelected() {
  if (!selected_) return;
  const std::size_t place = *selected_;
  equations_.erase(equations_.begin() + static_cast<std::ptrdiff_t>(place));
  selected_.reset();
  Select(place == 0 ? 0 : place - 1);
}

std::u16string CurveLabel(std::size_t place, std::u16string_view equation) {
  return std::u16string(kCurvePrefixes[place]).append(equation);
}

}  // namespace kav
