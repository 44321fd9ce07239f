// Typed, pasted and dropped texts of any content. What becomes of one is spelled as the calculator
// spells it, so that nothing changes the second time, and is hardly longer; and every question
// about its commas can be answered.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "display/comma_reading.h"
#include "display/own_spelling.h"

namespace {

using kav::CommaMeaning;

void Check(bool holds) {
  if (!holds) std::abort();
}

std::u16string WithoutGroups(std::u16string text) {
  std::erase_if(text, [](char16_t c) { return c == u' ' || c == u'\'' || c == u','; });
  return text;
}

/// Whether both are the same. Digits may come together in more steps than one: what parted them
/// from a word may have been written in the first.
bool IsSpelledAs(const std::u16string& one, const std::u16string& other) {
  return one == other || (other.size() < one.size() && WithoutGroups(one) == WithoutGroups(other));
}

/// Of several line breaks, one goes each time.
bool EndsInBreak(std::u16string_view text) {
  return text.ends_with(u'\n') || text.ends_with(u'\r');
}

/// All meanings to choose from look different.
void CheckChoice(const kav::CommaQuestion& question) {
  std::set<std::u16string> texts;
  for (const CommaMeaning meaning : question.meanings) {
    texts.insert(kav::CommaMeaningText(question.number, meaning));
  }
  Check(!question.meanings.empty() && texts.size() == question.meanings.size());
}

void CheckLine(const std::u16string& text) {
  const std::u16string own = kav::OwnSpelling(text);
  Check(EndsInBreak(own) || IsSpelledAs(own, kav::OwnSpelling(own)));
  Check(own.size() <= 8 * text.size());
  for (const char16_t c : {u'×', u'÷', u'−', u'π', u'²', u'\u00A0', u'\u200B', u'５'}) {
    Check(own.find(c) == own.npos);
  }
  const auto question = kav::QuestionOfLine(own);
  if (!question) return;
  Check(own.find(question->number) != own.npos);
  Check(!kav::LineQuestionText(*question).empty());
  CheckChoice(*question);
  for (const CommaMeaning meaning : question->meanings) {
    const std::u16string read = kav::LineWithCommas(own, *question, meaning);
    Check(read != own && read.size() <= own.size());
  }
}

void CheckPiece(const std::u16string& text, char16_t before, char16_t after) {
  const std::u16string own = kav::OwnPiece(before, text, after);
  Check(EndsInBreak(own) || IsSpelledAs(own, kav::OwnPiece(before, own, after)));
}

void CheckCells(const std::u16string& text) {
  const std::u16string own = kav::OwnCells(text);
  Check(IsSpelledAs(own, kav::OwnCells(own)));
  for (const char16_t c : {u'\t', u'\n', u';', u','}) {
    Check(std::count(own.begin(), own.end(), c) >= std::count(text.begin(), text.end(), c));
  }
  const auto question = kav::QuestionOfCommas(own);
  if (!question) return;
  Check(!kav::CommaQuestionText(*question).empty());
  CheckChoice(*question);
  for (const CommaMeaning meaning : question->meanings) {
    const std::u16string read = kav::WithCommas(own, meaning);
    Check(read.size() <= own.size());
    Check((read == own) == (meaning == CommaMeaning::Separator));
  }
}

/// The two numbers to choose from look different.
void CheckRefusal(const std::u16string& text) {
  constexpr std::u16string_view kWrite = u"Write ";
  constexpr std::u16string_view kOr = u" or ";
  const auto refusal = kav::CommaRefusal(text);
  if (!refusal) return;
  const std::size_t first = refusal->rfind(kWrite);
  const std::size_t second = refusal->rfind(kOr);
  Check(first != refusal->npos && second != refusal->npos && first < second);
  const std::u16string_view rest = *refusal;
  const std::u16string_view one =
      rest.substr(first + kWrite.size(), second - first - kWrite.size());
  Check(rest.substr(second + kOr.size()) != std::u16string(one) + u'.');
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string text =
      kav::Widen(std::string_view(reinterpret_cast<const char*>(data), size));
  CheckLine(text);
  for (const char16_t beside : {u'\0', u'n', u'2'}) CheckPiece(text, beside, beside);
  CheckCells(text);
  CheckRefusal(text);
  return 0;
}
