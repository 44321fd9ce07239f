#include "plotter/plotter_model.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "common/number_text.h"
#include "display/number_format.h"
#include "engine/formula_checker.h"
#include "line/line_texts.h"
#include "macros/macro_call.h"
#include "plotter/plotter_texts.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// In the order of RangeField.
constexpr std::array<TextKey, kRangeFields.size()> kRangeKeys{kPlotXMin, kPlotXMax, kPlotYMin,
                                                              kPlotYMax};

RangeTexts LoadRange(const SettingsStore& store) {
  RangeTexts texts;
  for (const RangeField field : kRangeFields) {
    texts[IndexOf(field)] = Widen(store.Get(kRangeKeys[IndexOf(field)]));
  }
  return texts;
}

/// A stored text may be of any length, and an input with many more characters is slow.
std::u16string ShownInInput(std::u16string_view text) {
  constexpr std::size_t kMostShown = 16'384;
  return Shortened(text, kMostShown);
}

PlotterRefusal RefuseInput(std::u16string_view text) {
  return {std::u16string(text), std::nullopt};
}

PlotterRefusal RefuseField(const Refusal<RangeField>& refusal) {
  return {refusal.text, refusal.focus};
}

}  // namespace

PlotterModel::PlotterModel(SettingsStore& store)
    : store_(store),
      macros_(store),
      angle_(AngleUnitFromSetting(store.Get(kAngleType))),
      equations_(EquationList::Load(store)),
      range_(LoadRange(store)),
      history_(History::Load(store, kPlotterHistory)) {}

void PlotterModel::Save() const {
  store_.Set(kAngleType, static_cast<std::int32_t>(angle_));
  equations_.Save(store_);
  for (const RangeField field : kRangeFields) {
    store_.Set(kRangeKeys[IndexOf(field)], Narrow(range_[IndexOf(field)]));
  }
  history_.Save(store_, kPlotterHistory);
}

void PlotterModel::SetInput(ExpressionLine input) {
  input_ = std::move(input);
}

void PlotterModel::SetRangeText(RangeField field, std::u16string text) {
  range_[IndexOf(field)] = std::move(text);
}

void PlotterModel::Toggle(PlotterOption option) {
  bool& isOn = option == PlotterOption::Grid ? options_.hasGrid : options_.hasLines;
  isOn = !isOn;
}

void PlotterModel::ChooseEquation(std::size_t place) {
  if (place >= equations_.All().size()) return;
  equations_.Select(place);
  input_.Clear();
  Insert(equations_.All()[place]);
}

std::u16string_view PlotterModel::Caption(PlotterKey key) const {
  return key == PlotterKey::Deg ? AngleCaption(angle_) : RowOf(key).Shown(shift_).caption;
}

bool PlotterModel::IsEnabled(PlotterKey key) const {
  switch (key) {
    case PlotterKey::Add:
      return !equations_.IsFull();
    case PlotterKey::DeleteEquation:
      return !equations_.IsEmpty();
    case PlotterKey::PlayBack:
      return !history_.IsEmpty();
    default:
      return true;
  }
}

bool PlotterModel::IsVisible(PlotterKey key) const {
  if (key == PlotterKey::Shift) return shift_ == ShiftState::Off;
  return key != PlotterKey::ShiftActive || shift_ == ShiftState::On;
}

PlotterRequest PlotterModel::Press(PlotterKey key) {
  if (!IsVisible(key) || !IsEnabled(key)) return Nothing{};
  switch (key) {
    case PlotterKey::Add: {
      auto refusal = Add();
      return refusal ? PlotterRequest(*std::move(refusal)) : Nothing{};
    }
    case PlotterKey::DeleteEquation:
      return AskFirst<PlotterKey>{key, kDeleteEquationQuestion};
    case PlotterKey::Plot:
      return Plot();
    case PlotterKey::PlayBack:
      return ShowMenu<PlotterKey>{key};
    case PlotterKey::Macro:
      return MacroRequest();
    default:
      Change(key);
      return Nothing{};
  }
}

void PlotterModel::Change(PlotterKey key) {
  switch (key) {
    case PlotterKey::Deg:
      angle_ = OtherAngleUnit(angle_);
      return;
    case PlotterKey::Shift:
      shift_ = ShiftState::On;
      return;
    case PlotterKey::ShiftActive:
      shift_ = ShiftState::Off;
      return;
    case PlotterKey::Backspace:
      return input_.DeleteBackward();
    case PlotterKey::Delete:
      return input_.DeleteForward();
    case PlotterKey::Clear:
      return input_.Clear();
    default:
      ApplyFace(RowOf(key).Shown(shift_), input_);
  }
}

void PlotterModel::Insert(std::u16string_view text) {
  input_.InsertText(ShownInInput(text));
}

std::optional<PlotterRefusal> PlotterModel::Add() {
  const std::u16string equation(TrimBlanks(std::u16string_view(input_.Text())));
  if (equation.empty()) return RefuseInput(kEquationIsNull);
  // Before anything is refused, so that the user can take back what has a mistake and mend it.
  history_.Add(equation);
  if (equations_.IsFull()) return RefuseInput(MaximumOfEquations(EquationList::kCapacity));
  const auto formula = CheckFormula(Narrow(equation), VariableType::X);
  if (!formula) return RefuseInput(Widen(formula.error().message));
  if (equations_.Holds(equation)) return RefuseInput(EquationIsAddedAlready(equation));
  equations_.Add(equation);
  input_.Clear();
  return std::nullopt;
}

void PlotterModel::DeleteEquation() {
  equations_.DeleteSelected();
}

Menu PlotterModel::MenuOf(PlotterKey key) const {
  return key == PlotterKey::PlayBack ? BuildHistoryMenu(history_) : Menu();
}

PlotterRequest PlotterModel::Choose(PlotterKey key, int id) {
  if (Offers(MenuOf(key), id)) Insert(history_.Entries()[static_cast<std::size_t>(id) - 1]);
  return Nothing{};
}

PlotterRequest PlotterModel::MacroRequest() {
  const auto request = RequestMacro(store_, macros_);
  // Unlike the other screens, this one does not open the editor if there is no macro.
  if (const auto* none = std::get_if<OpenMacroEditor>(&request)) {
    return TellStop{std::u16string(none->message)};
  }
  return OpenMacroList{};
}

void PlotterModel::TakeMacro(int index) {
  if (index >= 0 && index < macros_.Count()) Insert(Widen(macros_.At(index).formula));
}

PlotterRequest PlotterModel::Plot() {
  const auto range = ReadRange(range_, angle_);
  if (!range) return RefuseField(range.error());
  if (equations_.IsEmpty()) {
    if (input_.Text().empty()) return RefuseInput(kNoEquationToPlot);
    if (auto refusal = Add()) return *std::move(refusal);
  }
  if (const auto refusal = RefuseRange(*range)) return RefuseField(*refusal);
  return PlotIn(*range);
}

PlotterRequest PlotterModel::PlotIn(const PlotRange& range) {
  GraphInput graph{{}, range, angle_, options_, LoadDisplayFormat(store_), {}};
  for (std::size_t place = 0; place < equations_.All().size(); ++place) {
    const std::u16string& equation = equations_.All()[place];
    auto formula = CheckFormula(Narrow(equation), VariableType::X);
    if (!formula) {
      ChooseEquation(place);
      return RefuseInput(EquationFails(equation, Widen(formula.error().message)));
    }
    graph.curves.push_back({CurveLabel(place, equation), *std::move(formula)});
  }
  return OpenGraph{std::move(graph)};
}

}  // namespace kav
