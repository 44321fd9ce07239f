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

std::u16string PlotterModel::ItemText(std::size_t place) const {
  const std::u16string& equation = equations_.All()[place];
  return equations_.IsOn(place) ? equation : std::u16string(kSwitchedOff) + equation;
}

std::u16string PlotterModel::TypedEquationText() const {
  return std::u16string(TrimBlanks(std::u16string_view(input_.Text())));
}

std::optional<PlotterRefusal> PlotterModel::Add() {
  const std::u16string equation = TypedEquationText();
  if (equation.empty()) return RefuseInput(kEquationIsNull);
  // Before anything is refused, so that the user can take back what has a mistake and mend it.
  history_.Add(equation);
  if (equations_.IsFull()) return RefuseInput(MaximumOfEquations(EquationList::kCapacity));
  if (auto refusal = Refuse(equation)) return refusal;
  equations_.Add(equation);
  input_.Clear();
  return std::nullopt;
}

std::optional<PlotterRefusal> PlotterModel::Refuse(const std::u16string& equation) const {
  const auto formula = CheckFormula(Narrow(equation), VariableType::X);
  if (!formula) return RefuseInput(Widen(formula.error().message));
  if (equations_.Holds(equation)) return RefuseInput(EquationIsAddedAlready(equation));
  return std::nullopt;
}

std::optional<PlotterRefusal> PlotterModel::Replace() {
  if (!CanReplace()) return Add();
  const std::u16string equation = TypedEquationText();
  if (equation.empty()) return RefuseInput(kEquationIsNull);
  history_.Add(equation);
  const bool isSame = equation == equations_.All()[*equations_.Selected()];
  if (!isSame) {
    if (auto refusal = Refuse(equation)) return refusal;
    equations_.ReplaceSelected(equation);
  }
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
  if (auto question = QuestionOfTyped()) return *std::move(question);
  return PlotIn(*range);
}

/// Who left a typed equation out is not asked about it again.
std::optional<AskAboutTyped> PlotterModel::QuestionOfTyped() const {
  const std::u16string typed = TypedEquationText();
  if (typed.empty() || equations_.Holds(typed) || typed == leftOut_) return std::nullopt;
  if (equations_.IsFull()) {
    return AskAboutTyped{PlotWithoutTyped(typed), TypedEquation::LeaveOut, std::nullopt};
  }
  return AskAboutTyped{AddTypedFirst(typed), TypedEquation::Add, TypedEquation::LeaveOut};
}

PlotterRequest PlotterModel::PlotWith(TypedEquation typed) {
  const auto range = ReadRange(range_, angle_);
  if (!range) return RefuseField(range.error());
  if (typed == TypedEquation::LeaveOut) {
    leftOut_ = TypedEquationText();
  } else if (auto refusal = Add()) {
    return *std::move(refusal);
  }
  return PlotIn(*range);
}

GraphInput PlotterModel::EmptyGraph(const PlotRange& range) const {
  return {{}, range, angle_, options_, LoadDisplayFormat(store_), {}};
}

PlotterRequest PlotterModel::PlotIn(const PlotRange& range) {
  GraphInput graph = EmptyGraph(range);
  for (std::size_t place = 0; place < equations_.All().size(); ++place) {
    if (!equations_.IsOn(place)) continue;
    const std::u16string& equation = equations_.All()[place];
    auto formula = CheckFormula(Narrow(equation), VariableType::X);
    if (!formula) {
      ChooseEquation(place);
      return RefuseInput(EquationFails(equation, Widen(formula.error().message)));
    }
    graph.curves.push_back({CurveLabel(place, equation), *std::move(formula)});
  }
  if (graph.curves.empty()) return RefuseInput(kAllCurvesAreOff);
  return OpenGraph{std::move(graph)};
}

Expected<GraphInput, std::u16string> PlotterModel::LiveGraph() const {
  const auto range = ReadRange(range_, angle_);
  if (!range) return range.error().text;
  if (const auto refusal = RefuseRange(*range)) return refusal->text;
  GraphInput graph = EmptyGraph(*range);
  const auto draw = [&graph](std::size_t place, const std::u16string& equation) {
    auto formula = CheckFormula(Narrow(equation), VariableType::X);
    if (formula) graph.curves.push_back({CurveLabel(place, equation), *std::move(formula)});
  };
  const std::size_t count = equations_.All().size();
  for (std::size_t place = 0; place < count; ++place) {
    if (equations_.IsOn(place)) draw(place, equations_.All()[place]);
  }
  const std::u16string typed = TypedEquationText();
  if (!equations_.IsFull() && !typed.empty() && !equations_.Holds(typed)) draw(count, typed);
  return graph;
}

void PlotterModel::TakeRange(const PlotRange& range) {
  range_ = TextsOf(range);
}

}  // namespace kav
