#include "statistics/data_reader.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "common/number_text.h"

namespace kav {
namespace {

/// Every number of so many digits fits into an integer of 32 bits.
constexpr std::size_t kSmallDigits = 9;

/// What a byte of a file is. Those of a number have the last bit.
constexpr unsigned char kUsualSeparator = 0;
constexpr unsigned char kOfNumber = 1;
constexpr unsigned char kUnusual = 2;

constexpr std::array<unsigned char, 256> MakeKinds() {
  std::array<unsigned char, 256> kinds{};
  for (unsigned char& kind : kinds) kind = kUnusual;
  for (const char c : std::string_view(" \t\r\n;"))
    kinds[static_cast<unsigned char>(c)] = kUsualSeparator;
  for (const char c : std::string_view("0123456789.e+-"))
    kinds[static_cast<unsigned char>(c)] = kOfNumber;
  return kinds;
}
constexpr auto kKinds = MakeKinds();

unsigned char KindOf(char c) {
  return kKinds[static_cast<unsigned char>(c)];
}

bool IsCount(double number) {
  using Limits = std::numeric_limits<std::int32_t>;
  // The fraction is truncated.
  return number > Limits::min() - 1.0 && number < Limits::max() + 1.0;
}

/// Where the number characters at the start of `text` end.
std::size_t LeadingLength(std::string_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(), IsNumberCharacter);
  return static_cast<std::size_t>(end - text.begin());
}

/// The length of `text` without the number characters at its end.
std::size_t LengthBeforeLast(std::string_view text) {
  std::size_t length = text.size();
  while (length > 0 && IsNumberCharacter(text[length - 1])) --length;
  return length;
}

}  // namespace

bool IsNumberCharacter(char c) {
  return KindOf(c) == kOfNumber;
}

DataReader::DataReader(DataShape shape, RowsTaker take, Mistakes mistakes)
    : take_(std::move(take)), variables_(VariablesOf(shape)), mistakes_(mistakes) {}

std::optional<DataFault> DataReader::Read(std::string_view block) {
  if (IsGapTooLong(block)) return Refuse(DataRefusal::NoNumber);
  if (auto fault = ReadTokens(block)) return fault;
  if (auto fault = HandRowsOver()) return fault;
  KeepValues();
  return std::nullopt;
}

/// Passes on the rows that are whole.
std::optional<DataFault> DataReader::HandRowsOver() {
  if (whole_ == 0) return std::nullopt;
  const TakenRows taken = take_({rows_.data(), whole_});
  if (taken.refusal) return DataFault{*taken.refusal, lines_[taken.count]};
  if (field_ > 0) rows_[0] = rows_[whole_];
  whole_ = 0;
  hasRows_ = true;
  return std::nullopt;
}

/// The fault in this line, or that of a row before it.
std::optional<DataFault> DataReader::Refuse(DataRefusal refusal) {
  if (auto fault = HandRowsOver()) return fault;
  return DataFault{refusal, line_};
}

/// Whether there are too many bytes without a number, `block` included.
bool DataReader::IsGapTooLong(std::string_view block) {
  if (mistakes_ == Mistakes::Taken) return false;
  // Mostly the first byte is one of a number.
  const bool hasNumber = std::any_of(block.begin(), block.end(), IsNumberCharacter);
  gap_ = hasNumber ? 0 : gap_ + block.size();
  return gap_ > kLongestGap;
}

/// Reads a count that is more than a few digits.
std::optional<DataFault> DataReader::TakeCount(std::string_view token) {
  unusual_ = 1;
  const bool refuses = mistakes_ == Mistakes::Refused;
  if (refuses && token.size() > DataList::kLongestValue) return Refuse(DataRefusal::ValueTooLong);
  const double number = ReadLeadingNumber(token.substr(0, kCountLength));
  if (refuses && !IsCount(number)) return Refuse(DataRefusal::CountOutOfRange);
  rows_[whole_].count = ToInt32(number);
  return std::nullopt;
}

inline std::optional<DataFault> DataReader::TakeToken(std::string_view token) {
  DataRow& row = rows_[whole_];
  if (!ExpectsCount()) {
    if (token.size() > DataList::kLongestValue) return Refuse(DataRefusal::ValueTooLong);
    if (field_ == 0) unusual_ |= line_ ^ nextLine_;
    row.values[field_++] = token;
    return std::nullopt;
  }
  const char* const end = token.data() + token.size();
  const TakenDigits digits = TakeDigits(token.data(), end, 0);
  if (digits.end == end && token.size() <= kSmallDigits) {
    row.count = static_cast<std::int32_t>(digits.number);
    unusual_ |= digits.number == 0 ? 1U : 0U;
  } else if (auto fault = TakeCount(token)) {
    return fault;
  }
  unusual_ |= line_ ^ nextLine_;
  nextLine_ = line_ + 1;
  field_ = 0;
  lines_[whole_++] = line_;
  if (whole_ == kRowsAtOnce) return HandRowsOver();
  return std::nullopt;
}

/// Takes the carried token, now that its end has come.
std::optional<DataFault> DataReader::TakeCarried() {
  std::string_view token = carried_;
  if (!ExpectsCount()) token = kept_[field_].assign(carried_);
  auto fault = TakeToken(token);
  carried_.clear();
  carriedLength_ = 0;
  return fault;
}

std::optional<DataFault> DataReader::ReadTokens(std::string_view block) {
  if (!carried_.empty()) {
    const std::size_t length = LeadingLength(block);
    if (auto fault = Carry(block.substr(0, length))) return fault;
    block.remove_prefix(length);
    if (block.empty()) return std::nullopt;
    if (auto fault = TakeCarried()) return fault;
  }
  const std::size_t whole = LengthBeforeLast(block);
  if (auto fault = ReadWholeTokens(block.data(), block.data() + whole)) return fault;
  return Carry(block.substr(whole));
}

/// Takes tokens that all end before `end`, so that the loop over a token needs no check for `end`.
std::optional<DataFault> DataReader::ReadWholeTokens(const char* at, const char* end) {
  unsigned kinds = 0;
  while (true) {
    for (; at != end && !IsNumberCharacter(*at); ++at) {
      kinds |= KindOf(*at);
      line_ += *at == '\n' ? 1U : 0U;
    }
    if (at == end) break;
    const char* const start = at;
    while (IsNumberCharacter(*at)) ++at;
    const std::string_view token(start, static_cast<std::size_t>(at - start));
    if (auto fault = TakeToken(token)) return fault;
  }
  unusual_ |= kinds;
  return std::nullopt;
}

/// Keeps a piece of a token, as far as it is read, until the end of the token comes.
std::optional<DataFault> DataReader::Carry(std::string_view piece) {
  const std::size_t most = ExpectsCount() ? kCountLength : DataList::kLongestValue;
  carriedLength_ += piece.size();
  const bool refuses = !ExpectsCount() || mistakes_ == Mistakes::Refused;
  if (refuses && carriedLength_ > DataList::kLongestValue) return Refuse(DataRefusal::ValueTooLong);
  carried_.append(piece.substr(0, most - carried_.size()));
  return std::nullopt;
}

/// Copies the values of an unfinished row, because the block that they are in goes.
void DataReader::KeepValues() {
  for (std::size_t i = 0; i < field_; ++i) {
    std::string_view& value = rows_[0].values[i];
    if (value.data() != kept_[i].data()) value = kept_[i].assign(value);
  }
}

std::optional<DataFault> DataReader::Finish() {
  if (field_ == 0 || hasRows_) return std::nullopt;
  DataRow row = rows_[0];
  for (; field_ < kMostVariables; ++field_) row.values[field_] = {};
  row.count = std::nullopt;
  const TakenRows taken = take_({&row, 1});
  if (taken.refusal) return DataFault{*taken.refusal, line_};
  return std::nullopt;
}

}  // namespace kav
