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
  const auto off = static_cast<unsigned>(store.Get(kCurvesOff));
  for (int i = 0; i < count; ++i) {
    std::u16string equation = Widen(store.Get(StoredEquation(i)));
    if (equation.empty()) continue;
    list.off_[list.equations_.size()] = (off >> static_cast<unsigned>(i) & 1U) != 0;
    list.equations_.push_back(std::move(equation));
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
  unsigned off = 0;
  for (std::size_t i = 0; i < equations_.size(); ++i) off |= (off_[i] ? 1U : 0U) << i;
  store.Set(kCurvesOff, static_cast<std::int32_t>(off));
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
  off_[equations_.size()] = false;
  equations_.push_back(std::move(equation));
  selected_ = equations_.size() - 1;
}

void EquationList::ReplaceSelected(std::u16string equation) {
  if (selected_) equations_[*selected_] = std::move(equation);
}

void EquationList::Switch(std::size_t place) {
  if (place < equations_.size()) off_[place] = !off_[place];
}

void EquationList::DeleteSelected() {
  if (!selected_) return;
  const std::size_t place = *selected_;
  equations_.erase(equations_.begin() + static_cast<std::ptrdiff_t>(place));
  std::copy(off_.begin() + static_cast<std::ptrdiff_t>(place) + 1, off_.end(),
            off_.begin() + static_cast<std::ptrdiff_t>(place));
  off_.back() = false;
  selected_.reset();
  Select(place == 0 ? 0 : place - 1);
}

std::u16string CurveLabel(std::size_t place, std::u16string_view equation) {
  return std::u16string(kCurvePrefixes[place]).append(equation);
}

std::size_t PlaceOfLabel(std::u16string_view label, std::size_t otherwise) {
  for (std::size_t place = 0; place < kCurvePrefixes.size(); ++place) {
    if (label.starts_with(kCurvePrefixes[place])) return place;
  }
  return otherwise;
}

}  // namespace kav
