#include "line/past_lines_model.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "line/history.h"
#include "line/past_lines_texts.h"
#include "line/screen_menus.h"
#include "settings/keys.h"

namespace kav {
namespace {

constexpr std::int32_t kYes = 1;
constexpr std::int32_t kNo = 0;

std::string InSmallLetters(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), LowerCase<char>);
  return text;
}

}  // namespace

PastLine MakePastLine(PastOrigin origin, std::u16string_view line, std::u16string_view answer,
                      BaseMode base) {
  return {0, origin, static_cast<std::int32_t>(base), Narrow(line), Narrow(answer)};
}

void KeepPastLine(PastLines& lines, const SettingsStore& store, PastLine line) {
  if (store.Get(kHistoryKept) != kNo) lines.Add(std::move(line));
}

std::vector<std::u16string> TypedLinesOf(PastLines& lines, PastRoom room) {
  const std::vector<PastLine> past = lines.Of(room);
  std::vector<std::u16string> typed;
  typed.reserve(past.size());
  for (const PastLine& line : past) typed.push_back(Widen(line.line));
  return typed;
}

std::vector<std::u16string> Joined(std::vector<std::u16string> own,
                                   const std::vector<std::u16string>& all) {
  std::erase_if(own, [&all](const std::u16string& line) {
    return std::find(all.begin(), all.end(), line) != all.end();
  });
  own.insert(own.end(), all.begin(), all.end());
  return own;
}

bool HasNumber(const PastLine& past) {
  const std::size_t first = past.answer.find_first_not_of('-');
  if (first == past.answer.npos) return false;
  const int most = BaseModeFromSetting(past.base) == BaseMode::Hexadecimal ? 16 : 10;
  const char c = past.answer[first];
  return c == '.' || DigitValue(LowerCase(c)) < most;
}

std::u16string AnswerInsertion(const PastLine& past, DisplayFormat format, BaseMode base) {
  return EntryInsertion(AnswerEntry(Widen(past.answer), BaseModeFromSetting(past.base)), format,
                        base);
}

PastLinesModel::PastLinesModel(PastLines& lines, SettingsStore& store, PastRoom room)
    : lines_(lines), store_(store), room_(room) {}

void PastLinesModel::Load() {
  all_ = lines_.Of(room_);
  std::reverse(all_.begin(), all_.end());
  Find();
}

void PastLinesModel::Search(std::u16string_view text) {
  sought_ = InSmallLetters(Narrow(text));
  Find();
}

void PastLinesModel::Find() {
  found_.clear();
  std::copy_if(all_.begin(), all_.end(), std::back_inserter(found_), [this](const PastLine& past) {
    return InSmallLetters(past.line).find(sought_) != std::string::npos ||
           InSmallLetters(past.answer).find(sought_) != std::string::npos;
  });
}

PastRow PastLinesModel::Row(std::size_t row) const {
  const PastLine& past = found_[row];
  const BaseMode base = BaseModeFromSetting(past.base);
  const bool isTagged = base != BaseMode::Decimal && !past.answer.empty();
  return {OnOneLine(Widen(past.line)), OnOneLine(Widen(past.answer)),
          isTagged ? BaseCaption(base) : std::u16string_view()};
}

std::u16string PastLinesModel::Tip(std::size_t row) const {
  const PastRow shown = Row(row);
  std::u16string tip = shown.line;
  if (!shown.answer.empty()) tip.append(u"\n= ").append(shown.answer);
  if (!shown.tag.empty()) tip.append(u" ").append(shown.tag);
  return tip;
}

std::u16string_view PastLinesModel::WhyNone() const {
  if (!all_.empty()) return kNoneIsFound;
  return IsKept() ? kNoPastLines : kNoneIsKept;
}

void PastLinesModel::Delete(std::size_t row) {
  const PastLine past = found_[row];
  lines_.Remove(past.id);
  RemoveFrom(all_, past.id);
  RemoveFrom(found_, past.id);
  deleted_.push_back(past);
}

std::optional<std::size_t> PastLinesModel::Undo() {
  if (deleted_.empty()) return std::nullopt;
  const PastLine past = std::move(deleted_.back());
  deleted_.pop_back();
  lines_.PutBack(past);
  Load();
  const auto row = std::find_if(found_.begin(), found_.end(),
                                [&past](const PastLine& found) { return found.id == past.id; });
  if (row == found_.end()) return std::nullopt;
  return static_cast<std::size_t>(row - found_.begin());
}

std::u16string PastLinesModel::ClearQuestion() const {
  return ClearHistoryQuestion(all_.size());
}

void PastLinesModel::Clear() {
  deleted_.clear();
  lines_.Clear(room_);
  Load();
}

bool PastLinesModel::IsKept() const {
  return store_.Get(kHistoryKept) != kNo;
}

void PastLinesModel::Keep() {
  store_.Set(kHistoryKept, kYes);
}

std::optional<std::u16string> PastLinesModel::KeepNone() {
  store_.Set(kHistoryKept, kNo);
  if (all_.empty()) return std::nullopt;
  return DeleteKeptQuestion(all_.size());
}

}  // namespace kav
