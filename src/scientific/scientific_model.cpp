#include "scientific/scientific_model.h"

#include <utility>

#include "common/number_text.h"
#include "macros/macro_expansion.h"
#include "macros/macros_texts.h"
#include "scientific/scientific_texts.h"
#include "scientific/shown_number.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// The places for the arguments that a call of a macro leaves behind its first one.
std::u16string_view ArgumentPlaces(VariableType type) {
  switch (type) {
    case VariableType::X:
      return u" )";
    case VariableType::XY:
      return u" , )";
    case VariableType::XYZ:
      break;
  }
  return u" , , )";
}

}  // namespace

ScientificModel::ScientificModel(SettingsStore& store)
    : store_(store),
      macros_(store),
      modes_{AngleUnitFromSetting(store.Get(kAngleType)),
             BaseModeFromSetting(store.Get(kBaseType))},
      format_(LoadDisplayFormat(store)),
      positions_{store.Get(kConverterClass), store.Get(kConverterInput),
                 store.Get(kConverterOutput)},
      history_(History::Load(store)) {
  ShowAnswer();
}

void ScientificModel::Save() const {
  store_.Set(kAngleType, static_cast<std::int32_t>(modes_.angleUnit));
  store_.Set(kBaseType, static_cast<std::int32_t>(modes_.baseMode));
  store_.Set(kConverterClass, positions_.category);
  store_.Set(kConverterInput, positions_.input);
  store_.Set(kConverterOutput, positions_.output);
  history_.Save(store_);
}

void ScientificModel::SetLine(std::u16string text, Selection selection) {
  line_.Set(std::move(text), selection);
}

std::u16string_view ScientificModel::Caption(Key key) const {
  if (key == Key::Deg) {
    return modes_.angleUnit == AngleUnit::Degrees ? kDegreesCaption : kRadiansCaption;
  }
  if (key == Key::Dec) return BaseCaption(modes_.baseMode);
  return FaceShown(key, modes_.baseMode, shift_).caption;
}

bool ScientificModel::IsEnabled(Key key) const {
  if (key == Key::PlayBack) return !history_.IsEmpty();
  return IsKeyEnabled(key, modes_.baseMode, shift_);
}

bool ScientificModel::IsVisible(Key key) const {
  return IsKeyVisible(key, modes_.baseMode, shift_);
}

std::optional<Key> ScientificModel::KeyShowing(std::u16string_view caption) const {
  for (const KeyPlace& place : KeyPlaces()) {
    if (IsVisible(place.key) && Caption(place.key) == caption) return place.key;
  }
  return std::nullopt;
}

KeyRequest ScientificModel::Press(Key key) {
  if (!IsEnabled(key)) return Nothing{};
  switch (key) {
    case Key::Dec:
      return ShowBaseMenu{};
    case Key::PlayBack:
      return ShowHistoryMenu{};
    case Key::MemoryMenu:
      return ShowMemoryMenu{};
    case Key::Macro:
      return MacroRequest();
    case Key::Converter:
      return ConverterRequest();
    default:
      Change(key);
      return Nothing{};
  }
}

void ScientificModel::Change(Key key) {
  switch (key) {
    case Key::Deg:
      modes_.angleUnit =
          modes_.angleUnit == AngleUnit::Degrees ? AngleUnit::Radians : AngleUnit::Degrees;
      return;
    case Key::Shift:
      shift_ = ShiftState::On;
      return;
    case Key::ShiftActive:
      shift_ = ShiftState::Off;
      return;
    case Key::Backspace:
      return line_.DeleteBackward();
    case Key::Delete:
      return line_.DeleteForward();
    case Key::Clear:
      expression_ = line_.Text();
      return line_.Clear();
    case Key::Equals:
      return Evaluate();
    default:
      ApplyFace(FaceShown(key, modes_.baseMode, shift_), line_);
  }
}

KeyRequest ScientificModel::MacroRequest() {
  // Another program may have stored the first one.
  store_.Refresh();
  if (macros_.Count() == 0) return OpenMacroEditor{kNoMacroStored};
  return OpenMacroList{};
}

KeyRequest ScientificModel::ConverterRequest() const {
  std::u16string value = u"1";
  // Where the last "=" failed, the answer is 0 as well.
  if (lastAnswer_ != 0) {
    DisplayFormat format = format_;
    // The converter reads the text back, and separators would end the number.
    if (format.type == DisplayType::Thousands) format.type = DisplayType::FloatingPoint;
    value = ShownNumber(lastAnswer_, format, modes_.baseMode);
  }
  return OpenConverter{{std::move(value), positions_, memory_}};
}

void ScientificModel::Evaluate() {
  expression_ = line_.Text();
  const std::string line = Narrow(expression_);
  // A macro that another program stored a moment ago is there to be called.
  if (HoldsMacroCall(line)) store_.Refresh();
  const auto value = EvaluateLine(line, modes_, macros_);
  if (value) {
    Answer(*value);
  } else {
    Fail(value.error());
  }
  line_.SelectAll();
}

void ScientificModel::Answer(double value) {
  lastAnswer_ = value;
  errorText_.clear();
  ShowAnswer();
  if (history_.NewestIs(expression_)) return;
  history_.Add(AnswerEntry(resultText_, modes_.baseMode));
  history_.Add(expression_);
}

void ScientificModel::Fail(const LineFailure& failure) {
  lastAnswer_ = 0;
  resultText_ = Widen(failure.message);
  showsAnswer_ = false;
  errorText_ = failure.cause == LineFailure::Cause::EmptyLine ? kNoExpression : resultText_;
  if (failure.cause == LineFailure::Cause::Evaluation) history_.Add(expression_);
}

void ScientificModel::ShowAnswer() {
  resultText_ = ShownNumber(lastAnswer_, format_, modes_.baseMode);
  showsAnswer_ = true;
}

Menu ScientificModel::HistoryMenu() const {
  return BuildHistoryMenu(history_);
}

void ScientificModel::ChooseHistory(int id) {
  if (!Offers(HistoryMenu(), id)) return;
  const std::u16string& entry = history_.Entries()[static_cast<std::size_t>(id) - 1];
  line_.InsertText(EntryInsertion(entry, format_, modes_.baseMode));
}

Menu ScientificModel::BaseMenu() const {
  return BuildBaseMenu();
}

void ScientificModel::ChooseBase(int id) {
  const auto base = BaseOfItem(id);
  if (!base || *base == modes_.baseMode) return;
  modes_.baseMode = *base;
  ShowAnswer();
}

Menu ScientificModel::MemoryMenu() const {
  return BuildMemoryMenu(errorText_);
}

KeyRequest ScientificModel::ChooseMemory(int id) {
  if (!Offers(MemoryMenu(), id)) return Nothing{};
  switch (id) {
    case memory_item::kAdd:
      memory_ = lastAnswer_ + memory_;
      break;
    case memory_item::kSubtract:
      memory_ = memory_ - lastAnswer_;
      break;
    case memory_item::kRecall:
      Insert(memory_);
      break;
    case memory_item::kClear:
      memory_ = 0;
      break;
    case memory_item::kRecallVariable:
      return RecallMemoryVariable{};
    case memory_item::kStoreVariable:
      // Variables are decimal whatever base the answer was calculated in.
      return StoreMemoryVariable{InsertedNumber(lastAnswer_, format_, BaseMode::Decimal)};
    case memory_item::kConstants:
      return OpenConstants{};
    default:
      break;
  }
  return Nothing{};
}

void ScientificModel::TakeConverter(const ConverterOutcome& outcome) {
  if (outcome.result) line_.InsertText(*outcome.result);
  positions_ = outcome.positions;
  memory_ = outcome.memory;
}

void ScientificModel::TakeMacro(int index) {
  if (index < 0 || index >= macros_.Count()) return;
  const Macro& macro = macros_.At(index);
  const std::u16string prefix = u"M:" + Widen(macro.name) + u"(";
  line_.WrapSelection(prefix, ArgumentPlaces(macro.type), prefix.size() - 1);
}

void ScientificModel::TakeVariable(std::u16string_view value) {
  Insert(ReadLeadingNumber(Narrow(value)));
}

void ScientificModel::TakeConstant(std::u16string_view value) {
  if (modes_.baseMode == BaseMode::Decimal) return line_.InsertText(value);
  Insert(ReadLeadingNumber(Narrow(value)));
}

void ScientificModel::Insert(double value) {
  line_.InsertText(InsertedNumber(value, format_, modes_.baseMode));
}

void ScientificModel::TakeDisplaySettings() {
  format_ = LoadDisplayFormat(store_);
  if (modes_.baseMode == BaseMode::Decimal) ShowAnswer();
}

}  // namespace kav
