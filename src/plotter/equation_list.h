// The equations that the function plotter draws.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plotter/graph_input.h"
#include "settings/settings_store.h"

namespace kav {

/// Up to three equations in x. If there are any, one of them is selected. Stored ones may be equal;
/// the caller adds none that the list Holds.
class EquationList {
 public:
  static constexpr std::size_t kCapacity = kMostCurves;

  /// The stored equations, the first selected, and which of them are switched off. A stored count
  /// outside 0 to kCapacity counts as the nearer of the two; empty texts are left out.
  static EquationList Load(const SettingsStore& store);
  void Save(SettingsStore& store) const;

  const std::vector<std::u16string>& All() const { return equations_; }
  /// Whether the curve of the equation at `place` is drawn.
  bool IsOn(std::size_t place) const { return place < kCapacity && !off_[place]; }
  bool IsEmpty() const { return equations_.empty(); }
  bool IsFull() const { return equations_.size() == kCapacity; }
  bool Holds(std::u16string_view equation) const;
  /// A place in the list, from 0; nullopt for an empty list.
  std::optional<std::size_t> Selected() const { return selected_; }

  /// Does nothing if there is no such place.
  void Select(std::size_t place);
  /// Appends `equation` and selects it; a full list stays as it is.
  void Add(std::u16string equation);
  /// Puts `equation` in the place of the selected one, if there is one.
  void ReplaceSelected(std::u16string equation);
  /// Switches the curve at `place` off if it is on, and on if it is off; does nothing if there is
  /// no such place.
  void Switch(std::size_t place);
  /// Removes the selected equation; the one before it is selected then, or else the first.
  void DeleteSelected();

 private:
  std::vector<std::u16string> equations_;
  std::array<bool, kCapacity> off_{};
  std::optional<std::size_t> selected_;
};

/// The label of the curve of the equation at `place` (0 to kMostCurves - 1), such as
/// "R:F1(X)=sin(x)".
std::u16string CurveLabel(std::size_t place, std::u16string_view equation);

/// The place of the equation of a curve with that label: it has that colour, also in a graph
/// without the curves before it. `otherwise` for a label of another kind.
std::size_t PlaceOfLabel(std::u16string_view label, std::size_t otherwise);

}  // namespace kav
