#include "matrix/matrix_model.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "common/number_text.h"
#include "display/copied_text.h"
#include "line/line_texts.h"
#include "line/past_lines_model.h"
#include "line/shown_number.h"
#include "line/typed_operator.h"
#include "macros/macro_call.h"
#include "matrix/cell_number.h"
#include "matrix/cell_table_text.h"
#include "matrix/live_matrix.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_fault.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_menus.h"
#include "matrix/matrix_texts.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// What the screen only reads. It stores the defaults, too, when it is closed.
constexpr std::array kReadOnly{kMatrixDisplayType, kMatrixPrecision,   kMatrixRows,  kMatrixColumns,
                               kMatrixAlignment,   kMatrixColumnWidth, kDisplayType, kPrecision};

MatrixRequest RequestOf(MatrixOutcome outcome) {
  return std::visit([](auto& request) -> MatrixRequest { return std::move(request); }, outcome);
}

}  // namespace

MatrixModel::MatrixModel(SettingsStore& store)
    : store_(store),
      macros_(store),
      settings_(LoadDisplaySettings(store)),
      converter_(store),
      history_(History::Load(store, kMatrixHistory)),
      board_(settings_),
      answers_(store, macros_, settings_, board_) {}

void MatrixModel::Save() const {
  store_.Set(kAngleType, static_cast<std::int32_t>(answers_.Angle()));
  for (const IntegerKey& key : kReadOnly) store_.Set(key, store_.Get(key));
  converter_.Save(store_);
  history_.Save(store_, kMatrixHistory);
}

bool MatrixModel::TypeOperator(char16_t typed) {
  return kav::TypeOperator(typed, BaseMode::Decimal, line_);
}

std::u16string MatrixModel::MemoryText() const {
  if (converter_.memory == 0) return {};
  return ShownNumber(converter_.memory, settings_.normal, BaseMode::Decimal);
}

std::u16string_view MatrixModel::Caption(MatrixKey key) const {
  return key == MatrixKey::Deg ? AngleCaption(answers_.Angle()) : RowOf(key).plain.caption;
}

bool MatrixModel::IsEnabled(MatrixKey key) const {
  switch (key) {
    case MatrixKey::PlayBack:
      return !history_.IsEmpty();
    case MatrixKey::ClearCells:
    case MatrixKey::Size:
      return board_.IsOpen();
    default:
      return true;
  }
}

MatrixRequest MatrixModel::Press(MatrixKey key) {
  if (!IsEnabled(key)) return Nothing{};
  switch (key) {
    case MatrixKey::Functions:
    case MatrixKey::Tools:
    case MatrixKey::Operations:
    case MatrixKey::MatrixTools:
    case MatrixKey::Variables:
    case MatrixKey::PlayBack:
      return ShowMenu<MatrixKey>{key};
    case MatrixKey::ClearCells:
      return AskFirst<MatrixKey>{key, kClearCellsQuestion};
    case MatrixKey::Size:
      return AskMatrixSize{ShownMatrix().rows, ShownMatrix().columns};
    case MatrixKey::Equals:
      return Evaluate();
    default:
      Write(key);
      return Nothing{};
  }
}

void MatrixModel::Write(MatrixKey key) {
  switch (key) {
    case MatrixKey::Deg:
      return answers_.ToggleAngle();
    case MatrixKey::Backspace:
      return line_.DeleteBackward();
    case MatrixKey::Delete:
      return line_.DeleteForward();
    case MatrixKey::Clear:
      answers_.ForgetFault();
      return line_.Clear();
    default:
      break;
  }
  ApplyFace(RowOf(key).plain, line_);
}

void MatrixModel::TakePastAnswer(const PastLine& past) {
  if (!HasNumber(past)) return;
  line_.InsertText(AnswerInsertion(past, settings_.normal, BaseMode::Decimal));
}

MatrixRequest MatrixModel::Evaluate() {
  const std::u16string text(TrimBlanks(std::u16string_view(line_.Text())));
  const bool isMatrixLine = IsMatrixExpression(text);
  if (isMatrixLine) history_.Add(text);
  if (isMatrixLine || answers_.TakesNumbers()) line_.SelectAll();
  return RequestOf(answers_.Evaluate(line_.Text()));
}

MatrixRequest MatrixModel::Find(const MatrixProperty& property) {
  return RequestOf(answers_.Find(property, line_.Text()));
}

MatrixRequest MatrixModel::TakeMend() {
  if (!Fault() || !Fault()->mended) return Nothing{};
  line_.Set(*Fault()->mended, {});
  return Press(MatrixKey::Equals);
}

Menu MatrixModel::MenuOf(MatrixKey key) const {
  switch (key) {
    case MatrixKey::Functions:
      return BuildFunctionMenu();
    case MatrixKey::Tools:
      return BuildToolsMenu();
    case MatrixKey::Operations:
      return BuildOperationMenu();
    case MatrixKey::MatrixTools:
      return BuildMatrixToolsMenu(Shown());
    case MatrixKey::Variables:
      return BuildVariableMenu();
    case MatrixKey::PlayBack:
      return BuildHistoryMenu(history_);
    default:
      return {};
  }
}

MatrixRequest MatrixModel::Choose(MatrixKey key, int id) {
  if (!Offers(MenuOf(key), id)) return Nothing{};
  const std::size_t place = static_cast<std::size_t>(id) - 1;
  switch (key) {
    case MatrixKey::Functions: {
      const std::u16string prefix = FunctionPrefix(id);
      line_.WrapSelection(prefix, u")", prefix.size() - 1);
      break;
    }
    case MatrixKey::Tools:
      return ChooseTool(id);
    case MatrixKey::Operations:
      line_.InsertText(OperationText(id));
      break;
    case MatrixKey::MatrixTools:
      return ChooseMatrixTool(id);
    case MatrixKey::Variables:
      line_.InsertText(kMatrixNames[place]);
      break;
    default:
      line_.InsertText(history_.Entries()[place]);
      break;
  }
  return Nothing{};
}

MatrixRequest MatrixModel::ChooseTool(int id) {
  switch (id) {
    case tools_item::kConstants:
      return OpenConstants{};
    case tools_item::kRecallVariable:
      return RecallMemoryVariable{};
    case tools_item::kConverter:
      return ConverterRequest();
    default:
      return std::visit([](auto request) -> MatrixRequest { return request; },
                        RequestMacro(store_, macros_));
  }
}

MatrixRequest MatrixModel::ConverterRequest() const {
  const double answer = answers_.Last().value_or(0);
  return converter_.Request(answer == 0
                                ? std::u16string(kValueToConvert)
                                : InsertedNumber(answer, settings_.normal, BaseMode::Decimal));
}

MatrixRequest MatrixModel::ChooseMatrixTool(int id) {
  switch (id) {
    case matrix_tools_item::kCut:
      board_.Cut();
      break;
    case matrix_tools_item::kCopy:
      board_.Copy();
      break;
    case matrix_tools_item::kPaste:
      board_.Paste();
      break;
    case matrix_tools_item::kSave:
      if (HasEmptyCell(ShownMatrix())) return TellInvalid(AllMatrices(), Shown());
      return AskSaveFile{};
    case matrix_tools_item::kLoad:
      return AskLoadFile{};
    case matrix_tools_item::kResetWidths:
      board_.SetWidths(UniformWidths(settings_.columnWidth));
      break;
    default:
      return AutofitColumns{};
  }
  return Nothing{};
}

void MatrixModel::TakeMacro(int index) {
  WriteMacroCall(index, macros_, line_);
}

MatrixRequest MatrixModel::TakeVariable(std::u16string_view value) {
  return Insert(ReadLeadingNumber(Narrow(value)));
}

MatrixRequest MatrixModel::TakeConstant(std::u16string_view value) {
  line_.InsertText(value);
  return Nothing{};
}

MatrixRequest MatrixModel::Insert(double value) {
  if (!std::isfinite(value)) return TellStop{std::u16string(kRecalledIsTooLarge)};
  line_.InsertText(InsertedNumber(value, settings_.normal, BaseMode::Decimal));
  return Nothing{};
}

void MatrixModel::TakeDisplaySettings() {
  settings_ = LoadDisplaySettings(store_);
  answers_.ShowAgain();
}

bool MatrixModel::IsMarked(int row, int column) const {
  const std::u16string_view text = board_.CellText(row, column);
  return !text.empty() && !IsNumberText(text);
}

std::u16string MatrixModel::CellHint(int row, int column) const {
  const std::u16string_view text = board_.CellText(row, column);
  if (text.empty()) return {};
  return ShownNumber(ReadCell(text), settings_.matrix, BaseMode::Decimal);
}

std::optional<std::u16string> MatrixModel::TypeCell(int row, int column,
                                                    const std::u16string& text) {
  // A text that nobody touched may be older than this rule.
  if (text == board_.CellText(row, column)) return std::nullopt;
  if (auto refusal = CellRefusal(text)) return refusal;
  board_.SetCell(row, column, TypedCell(text));
  return std::nullopt;
}

void MatrixModel::BeginCellEdit(int row, int column) {
  const std::u16string_view text = board_.CellText(row, column);
  if (!text.empty()) line_.Set(std::u16string(text), {0, text.size()});
}

}  // namespace kav
