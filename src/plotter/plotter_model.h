// The function plotter's screen without its pixels: input, equations, range, keys, history,
// settings.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "common/expected.h"
#include "common/refusal.h"
#include "engine/calc_modes.h"
#include "line/expression_line.h"
#include "line/history.h"
#include "line/key_request.h"
#include "line/key_state.h"
#include "line/screen_menus.h"
#include "macros/macro_store.h"
#include "plotter/equation_list.h"
#include "plotter/graph_input.h"
#include "plotter/plotter_keypad.h"
#include "plotter/range_fields.h"
#include "settings/settings_store.h"

namespace kav {

/// The options that have a check box on the screen.
enum class PlotterOption { Grid, Line };

/// Told with the stop icon; then the field of the range gets the focus, or else the input.
using PlotterRefusal = Refusal<std::optional<RangeField>>;

/// What is to be done about an equation that was typed and not added.
enum class TypedEquation { Add, LeaveOut };

/// Asked before the graph is opened; what is plotted after a Yes or a No. Without a value for No,
/// No is to give up.
struct AskAboutTyped {
  std::u16string question;
  TypedEquation onYes;
  std::optional<TypedEquation> onNo;
};

/// On Yes to the question of DeleteEquation: DeleteEquation. After AskAboutTyped: PlotWith.
using PlotterRequest =
    std::variant<Nothing, PlotterRefusal, ShowMenu<PlotterKey>, AskFirst<PlotterKey>, TellStop,
                 OpenMacroList, OpenGraph, AskAboutTyped>;

/// Holds the whole state of the screen. The store must outlive it.
class PlotterModel {
 public:
  /// Loads the settings, the equations and the history; the input is empty.
  explicit PlotterModel(SettingsStore& store);

  /// Writes what the screen leaves behind into the store.
  void Save() const;

  // What the user types and chooses.
  const ExpressionLine& Input() const { return input_; }
  void SetInput(ExpressionLine input);
  const History& PastLines() const { return history_; }
  const RangeTexts& Range() const { return range_; }
  void SetRangeText(RangeField field, std::u16string text);
  const GraphOptions& Options() const { return options_; }
  void Toggle(PlotterOption option);
  const EquationList& Equations() const { return equations_; }
  /// What the list shows of the equation at that place.
  std::u16string ItemText(std::size_t place) const;
  /// Selects an equation and copies it into the input; does nothing if there is no such place.
  void ChooseEquation(std::size_t place);

  // The keys as they are now.
  std::u16string_view Caption(PlotterKey key) const;
  bool IsEnabled(PlotterKey key) const;
  bool IsVisible(PlotterKey key) const;
  /// Presses `key`; a disabled or hidden one does nothing.
  PlotterRequest Press(PlotterKey key);
  /// Adds the input to the equations and clears it, even if the key for it is disabled. Returns why
  /// it cannot be added; nullopt if it was. The history takes any input that is not blank.
  std::optional<PlotterRefusal> Add();
  /// Puts the input in the place of the selected equation and clears it. Returns why not.
  std::optional<PlotterRefusal> Replace();
  bool CanReplace() const { return equations_.Selected().has_value(); }
  /// Draws the curve at `place`, or leaves it out if it is drawn.
  void SwitchCurve(std::size_t place) { equations_.Switch(place); }
  /// Deletes the selected equation.
  void DeleteEquation();
  PlotterRequest PlotWith(TypedEquation typed);

  /// The graph of all that is in the list and switched on, and of the input as the next equation of
  /// it, as far as they are equations; it may have no curve. Fails if the fields hold no range.
  Expected<GraphInput, std::u16string> LiveGraph() const;
  /// Writes the bounds of `range` into the fields.
  void TakeRange(const PlotRange& range);

  /// The menu that `key` opens now; empty for a key without one.
  Menu MenuOf(PlotterKey key) const;
  /// An id that the menu of `key` does not offer does nothing.
  PlotterRequest Choose(PlotterKey key, int id);
  /// Inserts the formula of macro `index` into the input; nothing if there is no such macro.
  void TakeMacro(int index);

 private:
  void Change(PlotterKey key);
  void Insert(std::u16string_view text);
  PlotterRequest MacroRequest();
  PlotterRequest Plot();
  std::optional<AskAboutTyped> QuestionOfTyped() const;
  PlotterRequest PlotIn(const PlotRange& range);
  std::u16string TypedEquationText() const;
  std::optional<PlotterRefusal> Refuse(const std::u16string& equation) const;
  GraphInput EmptyGraph(const PlotRange& range) const;

  SettingsStore& store_;
  MacroStore macros_;
  AngleUnit angle_;
  EquationList equations_;
  RangeTexts range_;
  History history_;
  GraphOptions options_;
  ExpressionLine input_;
  std::u16string leftOut_;  ///< the typed equation that the user plotted without
  ShiftState shift_ = ShiftState::Off;
};

}  // namespace kav
