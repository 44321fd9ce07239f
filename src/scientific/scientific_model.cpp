#include "scientific/scientific_model.h"

#include <cmath>
#include <utility>

#include "common/number_text.h"
#include "display/copied_text.h"
#include "line/line_texts.h"
#include "line/past_lines_model.h"
#include "line/shown_number.h"
#include "line/typed_operator.h"
#include "macros/line_fault.h"
#include "macros/macro_call.h"
#include "settings/keys.h"

namespace kav {
ScientificModel::ScientificModel(SettingsStore& store)
    : store_(store),
      macros_(store),
      modes_{AngleUnitFromSetting(store.Get(kAngleType)), BaseModeFromSetting(store.Get(kBaseType)),
             0.0},
      format_(LoadDisplayFormat(store)),
      converter_(store),
      history_(History::Load(store, kCalculatorHistory)) {
  ShowAnswer();
}

void ScientificModel::Save() const {
  store_.Set(kAngleType, static_cast<std::int32_t>(modes_.angleUnit));
  store_.Set(kBaseType, static_cast<std::int32_t>(modes_.baseMode));
  converter_.Save(store_);
  history_.Save(store_, kCalculatorHistory);
}

void ScientificModel::SetLine(std::u16string text, Selection selection) {
  line_.Set(std::move(text), selection);
}

bool ScientificModel::TypeOperator(char16_t typed) {
  return kav::TypeOperator(typed, modes_.baseMode, line_);
}

std::optional<std::u16string> ScientificModel::LiveResult(std::u16string_view line) const {
  if (store_.Get(kLiveResult) == 0 || (answered_ && answered_->Is(line, modes_))) {
    return std::nullopt;
  }
  return LiveNumber(line, modes_, format_, macros_);
}

std::optional<std::u16string> ScientificModel::CopiedResult() const {
  if (showsMessage_) return std::nullopt;
  return PlainDigits(resultText_);
}

std::optional<std::u16string> ScientificModel::CopiedLine() const {
  // In another base the digits of the line would be another number's.
  const bool isAnswered = answered_ && answered_->modes.baseMode == modes_.baseMode;
  if (!isAnswered || !errorText_.empty()) return std::nullopt;
  return LineAndResult(answered_->text, resultText_);
}

std::u16string ScientificModel::MemoryText() const {
  if (converter_.memory == 0) return {};
  return ShownNumber(converter_.memory, format_, modes_.baseMode);
}

std::u16string_view ScientificModel::Caption(Key key) const {
  if (key == Key::Deg) return AngleCaption(modes_.angleUnit);
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

ScientificRequest ScientificModel::Press(Key key) {
  if (!IsEnabled(key)) return Nothing{};
  switch (key) {
    case Key::Dec:
    case Key::PlayBack:
    case Key::MemoryMenu:
      return ShowMenu<Key>{key};
    case Key::Macro:
      return std::visit([](auto request) -> ScientificRequest { return request; },
                        RequestMacro(store_, macros_));
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
      modes_.angleUnit = OtherAngleUnit(modes_.angleUnit);
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
      fault_.reset();
      expression_ = line_.Text();
      return line_.Clear();
    case Key::Equals:
      return Evaluate();
    default:
      ApplyFace(FaceShown(key, modes_.baseMode, shift_), line_);
  }
}

ScientificRequest ScientificModel::ConverterRequest() const {
  std::u16string value(kValueToConvert);
  // If the last "=" failed, the answer is 0 as well.
  if (lastAnswer_ != 0) {
    DisplayFormat format = format_;
    // The converter reads the text back, and separators would end the number.
    if (format.type == DisplayType::Thousands) format.type = DisplayType::FloatingPoint;
    value = ShownNumber(lastAnswer_, format, modes_.baseMode);
  }
  return converter_.Request(std::move(value));
}

void ScientificModel::Evaluate() {
  expression_ = line_.Text();
  const auto value = EvaluateTypedLine(expression_, modes_, store_, macros_);
  if (value) {
    Answer(*value);
  } else {
    Fail(value.error());
  }
  answered_ = AnsweredLine{expression_, modes_};
  line_.SelectAll();
}

void ScientificModel::Answer(double value) {
  lastAnswer_ = value;
  modes_.answer = value;
  fault_.reset();
  errorText_.clear();
  ShowAnswer();
  if (history_.NewestIs(expression_)) return;
  history_.Add(AnswerEntry(resultText_, modes_.baseMode));
  history_.Add(expression_);
}

void ScientificModel::Fail(const LineFailure& failure) {
  lastAnswer_ = 0;
  fault_ = FaultOf(expression_, failure, modes_, macros_);
  resultText_ = Widen(failure.message);
  showsMessage_ = true;
  errorText_ = failure.cause == LineFailure::Cause::EmptyLine ? kNoExpression : resultText_;
  if (failure.cause == LineFailure::Cause::Evaluation) history_.Add(expression_);
}

const std::optional<LineFault>& ScientificModel::Fault() const {
  static const std::optional<LineFault> kNone;
  return answered_ && answered_->text == line_.Text() ? fault_ : kNone;
}

ScientificRequest ScientificModel::TakeMend() {
  if (!Fault() || !Fault()->mended) return Nothing{};
  line_.Set(*Fault()->mended, {});
  return Press(Key::Equals);
}

void ScientificModel::ShowAnswer() {
  showsMessage_ = false;
  resultText_ = ShownNumber(lastAnswer_, format_, modes_.baseMode);
}

Menu ScientificModel::MenuOf(Key key) const {
  switch (key) {
    case Key::Dec:
      return BuildBaseMenu(modes_.baseMode);
    case Key::PlayBack:
      return BuildHistoryMenu(history_);
    case Key::MemoryMenu:
      return BuildMemoryMenu(errorText_);
    default:
      return {};
  }
}

ScientificRequest ScientificModel::Choose(Key key, int id) {
  if (!Offers(MenuOf(key), id)) return Nothing{};
  if (key == Key::MemoryMenu) return ChooseMemory(id);
  if (key == Key::Dec) {
    ChooseBase(id);
  } else {
    ChooseHistory(id);
  }
  return Nothing{};
}

void ScientificModel::ChooseHistory(int id) {
  const std::u16string& entry = history_.Entries()[static_cast<std::size_t>(id) - 1];
  line_.InsertText(EntryInsertion(entry, format_, modes_.baseMode));
}

std::optional<PastLine> ScientificModel::Evaluated() const {
  if (TrimBlanks(std::u16string_view(expression_)).empty()) return std::nullopt;
  const std::u16string_view answer = errorText_.empty() ? std::u16string_view(resultText_) : u"";
  return MakePastLine(PastOrigin::Scientific, expression_, answer, modes_.baseMode);
}

void ScientificModel::TakePastLine(const PastLine& past) {
  line_.InsertText(Widen(past.line));
}

void ScientificModel::TakePastAnswer(const PastLine& past) {
  if (HasNumber(past)) line_.InsertText(AnswerInsertion(past, format_, modes_.baseMode));
}

void ScientificModel::ChooseBase(int id) {
  const auto base = BaseOfItem(id);
  if (!base || *base == modes_.baseMode) return;
  modes_.baseMode = *base;
  fault_.reset();
  ShowAnswer();
}

ScientificRequest ScientificModel::ChooseMemory(int id) {
  switch (id) {
    case memory_item::kAdd:
      converter_.memory = lastAnswer_ + converter_.memory;
      break;
    case memory_item::kSubtract:
      converter_.memory = converter_.memory - lastAnswer_;
      break;
    case memory_item::kRecall:
      return Insert(converter_.memory);
    case memory_item::kClear:
      converter_.memory = 0;
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
  converter_.Take(outcome, line_);
}

void ScientificModel::TakeMacro(int index) {
  WriteMacroCall(index, macros_, line_);
}

ScientificRequest ScientificModel::TakeVariable(std::u16string_view value) {
  return Insert(ReadLeadingNumber(Narrow(value)));
}

ScientificRequest ScientificModel::TakeConstant(std::u16string_view value) {
  if (modes_.baseMode != BaseMode::Decimal) return Insert(ReadLeadingNumber(Narrow(value)));
  line_.InsertText(value);
  return Nothing{};
}

ScientificRequest ScientificModel::Insert(double value) {
  if (!std::isfinite(value)) return TellStop{std::u16string(kRecalledIsTooLarge)};
  line_.InsertText(InsertedNumber(value, format_, modes_.baseMode));
  return Nothing{};
}

void ScientificModel::TakeDisplaySettings() {
  format_ = LoadDisplayFormat(store_);
  if (modes_.baseMode == BaseMode::Decimal) ShowAnswer();
}

}  // namespace kav
