#include "display/comma_reading.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/ascii.h"
#include "common/number_text.h"

namespace kav {
namespace {

constexpr std::u16string_view kNumberCharacters = u"0123456789.,";
constexpr std::size_t kShownOfNumber = 16;

/// The next digits, points and commas in one piece of `text` from `at` on; empty at the end.
std::u16string_view NextRun(std::u16string_view text, std::size_t at) {
  const std::size_t start = text.find_first_of(kNumberCharacters, at);
  if (start == text.npos) return text.substr(text.size());
  const std::size_t end = text.find_first_not_of(kNumberCharacters, start);
  return text.substr(start, end == text.npos ? end : end - start);
}

std::size_t EndOf(std::u16string_view run, std::u16string_view text) {
  return static_cast<std::size_t>(run.data() - text.data()) + run.size();
}

/// Whether `whole` is one to three digits and then one or more groups of `mark` and three digits.
bool IsGroupedBy(char16_t mark, std::u16string_view whole) {
  constexpr std::size_t kGroup = 3;
  const std::size_t first = whole.find(mark);
  if (first == whole.npos || first == 0 || first > kGroup) return false;
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const bool endsGroup = i >= first && (i - first) % (kGroup + 1) == 0;
    if (endsGroup ? whole[i] != mark : !IsDigit(whole[i])) return false;
  }
  return (whole.size() - first) % (kGroup + 1) == 0;
}

bool HasCommaBeforeDigit(std::u16string_view run) {
  const std::size_t comma = run.find(u',');
  return comma != run.npos && run.find_first_of(u"0123456789", comma) != run.npos;
}

bool CanBeDecimal(std::u16string_view run) {
  const std::size_t comma = run.find(u',');
  if (comma == run.npos || comma + 1 == run.size()) return false;
  if (run.find_first_of(u".,", comma + 1) != run.npos) return false;
  const std::u16string_view whole = run.substr(0, comma);
  return whole.find(u'.') == whole.npos || IsGroupedBy(u'.', whole);
}

bool CanBeGrouping(std::u16string_view run) {
  return run.front() != u'0' && IsGroupedBy(u',', run.substr(0, run.find(u'.')));
}

std::u16string Without(std::u16string_view run, char16_t mark) {
  std::u16string text(run);
  text.erase(std::remove(text.begin(), text.end(), mark), text.end());
  return text;
}

std::u16string WithPoint(std::u16string_view run) {
  std::u16string text = Without(run, u'.');
  std::replace(text.begin(), text.end(), u',', u'.');
  return text;
}

}  // namespace

std::optional<CommaQuestion> QuestionOfCommas(std::u16string_view text) {
  if (text.find(u',') == text.npos) return std::nullopt;
  std::u16string_view first;
  bool decimal = true;
  bool grouping = true;
  for (auto run = NextRun(text, 0); !run.empty(); run = NextRun(text, EndOf(run, text))) {
    if (!HasCommaBeforeDigit(run)) {
      // With decimal commas 1.234 would be more than a thousand: that is another question.
      decimal = decimal && !IsGroupedBy(u'.', run);
      continue;
    }
    if (!CanBeDecimal(run) && !CanBeGrouping(run)) return std::nullopt;
    decimal = decimal && CanBeDecimal(run);
    grouping = grouping && CanBeGrouping(run);
    if (first.empty()) first = run;
  }
  if (first.empty()) return std::nullopt;
  CommaQuestion question{std::u16string(first), {}};
  if (decimal) question.meanings.push_back(CommaMeaning::DecimalPoint);
  if (grouping) question.meanings.push_back(CommaMeaning::Grouping);
  question.meanings.push_back(CommaMeaning::Separator);
  return question;
}

std::u16string CommaQuestionText(const CommaQuestion& question) {
  return u"The comma in \"" + Shortened(question.number, kShownOfNumber) +
         u"\" can be read in more than one way. Which is meant?";
}

std::u16string CommaMeaningText(std::u16string_view number, CommaMeaning meaning) {
  std::u16string text = WithCommas(number, meaning);
  for (std::size_t at = text.find(u','); at != text.npos; at = text.find(u',', at)) {
    text.replace(at, 1, u" | ");
  }
  return Shortened(text, kShownOfNumber);
}

std::u16string WithCommas(std::u16string_view text, CommaMeaning meaning) {
  if (meaning == CommaMeaning::Separator) return std::u16string(text);
  std::u16string read;
  read.reserve(text.size());
  std::size_t done = 0;
  for (auto run = NextRun(text, 0); !run.empty(); run = NextRun(text, done)) {
    const std::size_t end = EndOf(run, text);
    read += text.substr(done, end - run.size() - done);
    if (!HasCommaBeforeDigit(run)) {
      read += run;
    } else {
      read += meaning == CommaMeaning::DecimalPoint ? WithPoint(run) : Without(run, u',');
    }
    done = end;
  }
  return read += text.substr(done);
}

std::optional<std::u16string> CommaRefusal(std::u16string_view field) {
  for (auto run = NextRun(field, 0); !run.empty(); run = NextRun(field, EndOf(run, field))) {
    if (!CanBeDecimal(run)) continue;
    const std::u16string shown = Shortened(run, kShownOfNumber);
    return u"The comma in \"" + shown + u"\" can be read in two ways. Write " + WithPoint(shown) +
           u" or " + Without(shown, u',') + u".";
  }
  return std::nullopt;
}

}  // namespace kav
