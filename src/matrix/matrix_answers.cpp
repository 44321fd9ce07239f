#include "matrix/matrix_answers.h"

#include <utility>

#include "common/number_text.h"
#include "display/copied_text.h"
#include "line/line_texts.h"
#include "line/past_lines_model.h"
#include "line/shown_number.h"
#include "macros/macro_call.h"
#include "matrix/live_matrix.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_fault.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_texts.h"
#include "matrix/unknown_order.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// A matrix as the history of all sessions names it: the size, or the number if it has only one.
std::u16string PastAnswer(const MatrixValue& answer) {
  if (answer.rows == 1 && answer.columns == 1) return answer.At(0, 0);
  return MatrixOf(answer.rows, answer.columns);
}

}  // namespace

TellStop TellInvalid(const Matrices& matrices, int index) {
  const auto cell = FirstEmptyCell(matrices[static_cast<std::size_t>(index)]);
  return {MatrixIsInvalid(index), cell ? CellIsEmpty(cell->row, cell->column) : std::u16string()};
}

MatrixAnswers::MatrixAnswers(SettingsStore& store, const MacroStore& macros,
                             const DisplaySettings& settings, MatrixBoard& board)
    : store_(store),
      macros_(macros),
      settings_(settings),
      board_(board),
      modes_{AngleUnitFromSetting(store.Get(kAngleType)), BaseMode::Decimal, 0.0} {}

bool MatrixAnswers::TakesNumbers() const {
  return board_.ShownIndex() != kAnswerMatrix;
}

MatrixOutcome MatrixAnswers::Evaluate(const std::u16string& line) {
  fault_.reset();
  evaluated_.reset();
  const bool isMatrixLine = IsMatrixExpression(TrimBlanks(std::u16string_view(line)));
  // Not answered: the text is still that of an earlier line.
  if (!isMatrixLine && !TakesNumbers()) return Nothing{};
  about_.clear();
  MatrixOutcome outcome = Nothing{};
  if (isMatrixLine) {
    outcome = EvaluateMatrix(line);
  } else {
    EvaluateNumber(line);
  }
  answered_ = AnsweredLine{line, modes_};
  answeredChanges_ = board_.ChangeCount();
  return outcome;
}

void MatrixAnswers::EvaluateNumber(const std::u16string& line) {
  const std::u16string text(TrimBlanks(std::u16string_view(line)));
  const auto value = EvaluateTypedLine(text, modes_, store_, macros_);
  if (value) {
    last_ = modes_.answer = *value;
    text_ = ShownNumber(*value, settings_.normal, BaseMode::Decimal);
    return Note(text, text_);
  }
  last_.reset();
  fault_ = FaultOfLine(line, value.error().place);
  const bool isEmpty = value.error().cause == LineFailure::Cause::EmptyLine;
  if (!isEmpty) Note(text, {});
  text_ = isEmpty ? std::u16string(kNoExpression) : Widen(value.error().message);
}

MatrixOutcome MatrixAnswers::EvaluateMatrix(const std::u16string& line) {
  const std::u16string_view text = TrimBlanks(std::u16string_view(line));
  Note(text, {});
  // A number of an earlier line would look like a part of this one's answer.
  text_.clear();
  const Matrices& matrices = board_.All();
  if (const auto invalid = FirstInvalidMatrix(text, matrices)) {
    return TellInvalid(matrices, *invalid);
  }
  auto result = MatrixEvaluator(matrices, files_).Evaluate(Narrow(text), modes_.answer);
  // Before the answer replaces a matrix that the line names.
  std::u16string news = notes_.NewsOf(text, matrices, settings_.matrix);
  if (!result) {
    fault_ = FaultOfLine(line, result.error().place);
    board_.Lock();
    return TellStop{Widen(result.error().message), std::move(news)};
  }
  Note(text, PastAnswer(*result));
  if (const auto order = OrderOfUnknowns(Narrow(text), matrices, files_, modes_.answer)) {
    about_ = std::u16string(kOrderOfUnknowns) + *order;
  }
  board_.TakeAnswer(*std::move(result));
  if (news.empty()) return Nothing{};
  return TellNotice{std::move(news)};
}

MatrixOutcome MatrixAnswers::Find(const MatrixProperty& property, const std::u16string& line) {
  fault_.reset();
  evaluated_.reset();
  about_.clear();
  text_.clear();
  last_.reset();
  const Matrices& matrices = board_.All();
  const int index = board_.ShownIndex();
  MatrixOutcome outcome = Nothing{};
  if (HasEmptyCell(board_.Shown())) {
    outcome = TellInvalid(matrices, index);
  } else if (auto value = PropertyOf(property, board_.Shown())) {
    outcome = TakeProperty(property, *std::move(value));
  } else {
    outcome = TellStop{Widen(value.error().message)};
  }
  // What stands in the line is not what the result is of.
  answered_ = AnsweredLine{line, modes_};
  answeredChanges_ = board_.ChangeCount();
  return outcome;
}

MatrixOutcome MatrixAnswers::TakeProperty(const MatrixProperty& property, PropertyValue value) {
  const int index = board_.ShownIndex();
  std::u16string news =
      notes_.NewsOf(kMatrixNames[static_cast<std::size_t>(index)], board_.All(), settings_.matrix);
  about_ = PropertyTitle(property, value, index);
  if (value.number) {
    last_ = modes_.answer = *value.number;
    about_ += u": ";
    text_ = ShownNumber(*value.number, settings_.normal, BaseMode::Decimal);
  } else {
    board_.TakeAnswer(std::move(value.matrix));
  }
  if (news.empty()) return Nothing{};
  return TellNotice{std::move(news)};
}

std::u16string MatrixAnswers::Text() const {
  if (about_.empty()) return text_;
  if (answeredChanges_ != board_.ChangeCount()) return {};
  const bool isOfAnswer = text_.empty();
  return isOfAnswer && board_.ShownIndex() != kAnswerMatrix ? std::u16string() : about_ + text_;
}

void MatrixAnswers::Note(std::u16string_view text, std::u16string_view answer) {
  evaluated_ = MakePastLine(PastOrigin::Matrix, text, answer, BaseMode::Decimal);
}

LineFault MatrixAnswers::FaultOfLine(std::u16string_view line,
                                     std::optional<TextPlace> place) const {
  return MatrixFaultOf(line, place, {board_.All(), modes_, macros_, TakesNumbers()});
}

std::optional<std::u16string> MatrixAnswers::Live(std::u16string_view line) const {
  if (store_.Get(kLiveResult) == 0) return std::nullopt;
  const bool isAnswered = answered_ && answered_->Is(line, modes_);
  if (isAnswered && answeredChanges_ == board_.ChangeCount()) return std::nullopt;
  const std::u16string_view text = TrimBlanks(line);
  if (IsMatrixExpression(text)) return LiveOrder(text, board_.All(), modes_.answer);
  if (!TakesNumbers()) return std::nullopt;
  return LiveNumber(text, modes_, settings_.normal, macros_);
}

void MatrixAnswers::ShowAgain() {
  if (last_ && !text_.empty()) text_ = ShownNumber(*last_, settings_.normal, BaseMode::Decimal);
}

std::optional<std::u16string> MatrixAnswers::CopiedResult() const {
  if (!last_ || text_.empty() || Text().empty()) return std::nullopt;
  return PlainDigits(text_);
}

std::optional<std::u16string> MatrixAnswers::CopiedLine() const {
  if (!answered_ || !about_.empty() || !CopiedResult()) return std::nullopt;
  return LineAndResult(answered_->text, text_);
}

const std::optional<LineFault>& MatrixAnswers::FaultIn(std::u16string_view line) const {
  static const std::optional<LineFault> kNone;
  return answered_ && answered_->text == line ? fault_ : kNone;
}

}  // namespace kav
