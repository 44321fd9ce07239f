#include "cli/unusual_lines.h"

#include <algorithm>
#include <cmath>

#include "cli/cli_texts.h"
#include "common/ascii.h"
#include "common/number_text.h"
#include "statistics/data_reader.h"

namespace kav {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kUsualSeparators = " \t\r\n;,";
// More than a message quotes, so that the quotation shows that it is cut.
constexpr std::size_t kLongestStart = 48;
// More than is read of a count, and than a double has digits.
constexpr std::size_t kLongestToken = 64;

bool IsUsualCount(std::string_view token, double number) {
  return token.size() <= DataReader::kCountLength && ReadWholeNumber(token) && number >= 1 &&
         number == std::trunc(number);
}

}  // namespace

void UnusualLines::Read(std::string_view block, Place place) {
  if (!isWithinLine_) {
    line_ = place.line;
    field_ = place.field;
  }
  if (isAtStart_ && place.line == 1 && block.starts_with(kByteOrderMark)) {
    start_ =
        block.substr(kByteOrderMark.size(), block.find_first_of("\r\n") - kByteOrderMark.size());
    Add(Kind::Mark, kHasByteOrderMark);
    start_.clear();
    block.remove_prefix(kByteOrderMark.size());
  }
  isAtStart_ = false;
  while (!block.empty()) {
    const auto end = std::find_if_not(block.begin(), block.end(), IsNumberCharacter);
    const auto length = static_cast<std::size_t>(end - block.begin());
    TakeOfNumber(block.substr(0, length));
    if (length == block.size()) return;
    EndToken();
    TakeSeparator(block[length]);
    block.remove_prefix(length + 1);
  }
}

/// Takes a piece of a number, which may be empty.
void UnusualLines::TakeOfNumber(std::string_view piece) {
  if (piece.empty()) return;
  if (waiting_ == ',') hasComma_ = hasComma_ || IsDigit(piece.front());
  if (waiting_ == 'E') hasExponent_ = true;
  waiting_ = 0;
  token_.append(piece.substr(0, kLongestToken - token_.size()));
  start_.append(piece.substr(0, kLongestStart - start_.size()));
  previous_ = piece.back();
  isWithinLine_ = true;
}

void UnusualLines::TakeSeparator(char c) {
  if (waiting_ == 'E') hasText_ = true;
  const bool canWait = (c == ',' || c == 'E') && IsDigit(previous_);
  waiting_ = canWait ? c : '\0';
  if (!canWait && kUsualSeparators.find(c) == kUsualSeparators.npos) hasText_ = true;
  if (c == '\n') return EndLine();
  if (start_.size() < kLongestStart && c != '\r') start_ += c;
  previous_ = c;
  isWithinLine_ = true;
}

void UnusualLines::EndToken() {
  if (token_.empty()) return;
  JudgeToken();
  ++numbers_;
  field_ = field_ == variables_ ? 0 : field_ + 1;
  token_.clear();
}

void UnusualLines::JudgeToken() {
  if (field_ == variables_) return JudgeCount();
  const bool isWhole = token_.size() == kLongestToken || ReadWholeNumber(token_).has_value();
  if (isWhole || !valueRemark_.empty()) return;
  valueRemark_ = ValueReadAs(token_, ReadLeadingNumber(token_));
}

void UnusualLines::JudgeCount() {
  if (ReadInteger<std::int32_t>(token_).value_or(0) >= kLeastCount) return;
  const double number =
      ReadLeadingNumber(std::string_view(token_).substr(0, DataReader::kCountLength));
  if (IsUsualCount(token_, number) || !countRemark_.empty()) return;
  countRemark_ = CountReadAs(token_, ToInt32(number));
}

/// Of what is unusual only the cause is told, not what follows from it in the same line.
void UnusualLines::JudgeLine() {
  if (hasText_) return Add(Kind::Text, HasText(numbers_));
  if (hasComma_) Add(Kind::Comma, kCommaSeparates);
  if (hasExponent_) Add(Kind::Exponent, kLargeESeparates);
  if (!valueRemark_.empty()) Add(Kind::Value, valueRemark_);
  if (!countRemark_.empty()) Add(Kind::Count, countRemark_);
  if (hasComma_ || hasExponent_ || numbers_ == 0 || numbers_ == variables_ + 1) return;
  Add(Kind::Fields, HasOtherNumbers(numbers_, variables_ + 1));
}

void UnusualLines::EndLine() {
  JudgeLine();
  ++line_;
  start_.clear();
  numbers_ = 0;
  hasText_ = hasComma_ = hasExponent_ = isWithinLine_ = false;
  valueRemark_.clear();
  countRemark_.clear();
  previous_ = waiting_ = 0;
}

void UnusualLines::Finish(Place place, LastRow lastRow) {
  if (isWithinLine_) {
    const bool isCut = !token_.empty();
    if (isCut) Add(Kind::LastNumber, kLastNumberIsLeftOut);
    token_.clear();
    // The number that is left out is not missed as well.
    numbers_ += isCut ? 1U : 0U;
    JudgeLine();
  } else {
    line_ = place.line - 1;
  }
  if (place.field == 0) return;
  Add(Kind::LastRow, lastRow == LastRow::Kept ? kOnlyRowLacksCount : kLastRowIsLeftOut);
}

void UnusualLines::Add(Kind kind, std::string_view text) {
  bool& isFound = isFound_[static_cast<std::size_t>(kind)];
  if (isFound) return;
  isFound = true;
  remarks_.push_back({line_, InLine(line_, start_) + std::string(text)});
}

}  // namespace kav
