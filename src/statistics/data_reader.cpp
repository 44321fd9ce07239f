#include "statistics/data_reader.h"

#include <algorithm>
#include <utility>

#include "common/number_text.h"

namespace kav {
namespace {

/// The characters of a count that are read.
constexpr std::size_t kCountLength = 30;
/// Every number of so many digits fits into an integer of 32 bits.
constexpr std::size_t kSmallDigits = 9;

constexpr std::array<bool, 256> MakeNumberCharacters() {
  std::array<bool, 256> table{};
  for (const char c : std::string_view("0123456789.e+-"))
    table[static_cast<unsigned char>(c)] = true;
  return table;
}

bool IsNumberCharacter(char c) {
  static constexpr auto kTable = MakeNumberCharacters();
  return kTable[static_cast<unsigned char>(c)];
}

std::int32_t ReadCountToken(std::string_view token) {
  if (token.size() <= kSmallDigits) {
    const char* const end = token.data() + token.size();
    const TakenDigits digits = TakeDigits(token.data(), end, 0);
    if (digits.end == end) return static_cast<std::int32_t>(digits.number);
  }
  return ToInt32(ReadLeadingNumber(token.substr(0, kCountLength)));
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

DataReader::DataReader(DataShape shape, RowsTaker take)
    : take_(std::move(take)), variables_(VariablesOf(shape)) {}

std::optional<DataFault> DataReader::Read(std::string_view block) {
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

/// The fault of a value that is too long, or that of a row before it.
std::optional<DataFault> DataReader::RefuseValue() {
  if (auto fault = HandRowsOver()) return fault;
  return DataFault{DataRefusal::ValueTooLong, line_};
}

inline std::optional<DataFault> DataReader::TakeToken(std::string_view token) {
  DataRow& row = rows_[whole_];
  if (!ExpectsCount()) {
    if (token.size() > DataList::kLongestValue) return RefuseValue();
    row.values[field_++] = token;
    return std::nullopt;
  }
  field_ = 0;
  row.count = ReadCountToken(token);
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
  while (true) {
    for (; at != end && !IsNumberCharacter(*at); ++at) line_ += *at == '\n' ? 1U : 0U;
    if (at == end) return std::nullopt;
    const char* const start = at;
    while (IsNumberCharacter(*at)) ++at;
    const std::string_view token(start, static_cast<std::size_t>(at - start));
    if (auto fault = TakeToken(token)) return fault;
  }
}

/// Keeps a piece of a token, as far as it is read, until the end of the token comes.
std::optional<DataFault> DataReader::Carry(std::string_view piece) {
  const std::size_t most = ExpectsCount() ? kCountLength : DataList::kLongestValue;
  const bool fits = carried_.size() + piece.size() <= most;
  if (!fits && !ExpectsCount()) return RefuseValue();
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
