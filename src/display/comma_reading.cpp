#include "display/comma_reading.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

// Calls of several arguments, by what stands before their "(".
constexpr std::u16string_view kMacroCall = u"M:";
constexpr std::u16string_view kEquationCall = u"linearequation";

/// The place behind the ")" that closes the "(" at `open`, or the end.
std::size_t EndOfCall(std::u16string_view line, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < line.size(); ++at) {
    if (line[at] == u'(') ++depth;
    if (line[at] == u')' && --depth == 0) return at + 1;
  }
  return line.size();
}

/// The place of the next such call. Seen once from the left: to look for each name by itself would
/// go to the end of the line for every call of the other.
std::size_t NextCall(std::u16string_view line) {
  constexpr std::array kFirst{kMacroCall.front(), kEquationCall.front(), u'\0'};
  std::size_t at = line.find_first_of(kFirst.data());
  while (at != line.npos && !line.substr(at).starts_with(kMacroCall) &&
         !line.substr(at).starts_with(kEquationCall)) {
    at = line.find_first_of(kFirst.data(), at + 1);
  }
  return at;
}

/// Calls `see` with each part of `line`, in order, and whether it is between the arguments of a
/// call, where commas separate.
template <class See>
void ForEachPart(std::u16string_view line, const See& see) {
  while (!line.empty()) {
    const std::size_t call = NextCall(line);
    const std::size_t open = call == line.npos ? call : line.find(u'(', call);
    see(line.substr(0, open), false);
    if (open == line.npos) return;
    const std::size_t end = EndOfCall(line, open);
    see(line.substr(open, end - open), true);
    line.remove_prefix(end);
  }
}

/// `line` with each number that has a comma as `read` answers for it.
template <class Read>
std::u16string WithNumbers(std::u16string_view line, const Read& read) {
  std::u16string out;
  out.reserve(line.size());
  ForEachPart(line, [&](std::u16string_view part, bool isArguments) {
    std::size_t done = 0;
    if (!isArguments) {
      for (auto run = NextRun(part, 0); !run.empty(); run = NextRun(part, done)) {
        const std::size_t end = EndOf(run, part);
        out += part.substr(done, end - run.size() - done);
        out += HasCommaBeforeDigit(run) ? read(run) : std::u16string(run);
        done = end;
      }
    }
    out += part.substr(done);
  });
  return out;
}

/// The meanings that make `run` a number; none if its comma cannot be a decimal one.
std::vector<CommaMeaning> MeaningsInLine(std::u16string_view run) {
  if (!CanBeDecimal(run)) return {};
  const bool isWithout =
      IsDigit(run.front()) && run.front() != u'0' && std::count(run.begin(), run.end(), u'.') <= 1;
  if (isWithout) return {CommaMeaning::Grouping, CommaMeaning::DecimalPoint};
  return {CommaMeaning::DecimalPoint};
}

bool IsThousands(std::u16string_view run) {
  const std::size_t point = std::min(run.find(u'.'), run.size());
  return CanBeGrouping(run) && !CanBeDecimal(run) &&
         run.find_first_of(u".,", point + 1) == run.npos;
}

/// Where to begin to show `number`, so that its first comma is seen: without it, all that the
/// number could be would look the same.
std::size_t ShownFrom(std::u16string_view number) {
  const std::size_t comma = number.find(u',');
  return comma == number.npos || comma < kShownOfNumber ? 0 : comma - kShownOfNumber / 2;
}

/// What is shown of `text`, which stands for a number from its digit `from` on.
std::u16string Shown(std::size_t from, std::u16string_view text) {
  return (from > 0 ? u"…" : u"") + Shortened(text, kShownOfNumber);
}

std::u16string Read(std::u16string_view run, CommaMeaning meaning) {
  return meaning == CommaMeaning::DecimalPoint ? WithPoint(run) : Without(run, u',');
}

}  // namespace

bool IsGroupedBy(char16_t mark, std::u16string_view digits) {
  constexpr std::size_t kGroup = 3;
  const std::size_t first = digits.find(mark);
  if (first == digits.npos || first == 0 || first > kGroup) return false;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const bool endsGroup = i >= first && (i - first) % (kGroup + 1) == 0;
    if (endsGroup ? digits[i] != mark : !IsDigit(digits[i])) return false;
  }
  return (digits.size() - first) % (kGroup + 1) == 0;
}

std::u16string WithoutThousands(std::u16string_view line) {
  if (line.find(u',') == line.npos) return std::u16string(line);
  return WithNumbers(line, [](std::u16string_view run) {
    return IsThousands(run) ? Without(run, u',') : std::u16string(run);
  });
}

std::optional<CommaQuestion> QuestionOfLine(std::u16string_view line) {
  if (line.find(u',') == line.npos) return std::nullopt;
  std::optional<CommaQuestion> question;
  ForEachPart(line, [&](std::u16string_view part, bool isArguments) {
    if (isArguments || question) return;
    for (auto run = NextRun(part, 0); !run.empty(); run = NextRun(part, EndOf(run, part))) {
      std::vector<CommaMeaning> meanings;
      if (HasCommaBeforeDigit(run)) meanings = MeaningsInLine(run);
      if (meanings.empty()) continue;
      question = CommaQuestion{std::u16string(run), std::move(meanings)};
      return;
    }
  });
  return question;
}

std::u16string LineQuestionText(const CommaQuestion& question) {
  std::u16string text;
  for (const CommaMeaning meaning : question.meanings) {
    if (!text.empty()) text += u" or ";
    text += CommaMeaningText(question.number, meaning);
  }
  return text += u'?';
}

std::u16string LineWithCommas(std::u16string_view line, const CommaQuestion& question,
                              CommaMeaning meaning) {
  const bool isGrouping = CanBeGrouping(question.number);
  return WithNumbers(line, [&](std::u16string_view run) {
    const bool isSame =
        MeaningsInLine(run) == question.meanings && CanBeGrouping(run) == isGrouping;
    return isSame ? Read(run, meaning) : std::u16string(run);
  });
}

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
  const std::size_t from = ShownFrom(question.number);
  return u"What is " + Shown(from, std::u16string_view(question.number).substr(from)) + u'?';
}

std::u16string CommaMeaningText(std::u16string_view number, CommaMeaning meaning) {
  const std::size_t from = ShownFrom(number);
  std::u16string text = WithCommas(number.substr(from), meaning);
  for (std::size_t at = text.find(u','); at != text.npos; at = text.find(u',', at)) {
    text.replace(at, 1, u" | ");
  }
  return Shown(from, text);
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
    const std::size_t from = ShownFrom(run);
    const std::u16string shown = Shown(from, run.substr(from));
    return u"The comma in \"" + shown + u"\" can be read in two ways. Write " + WithPoint(shown) +
           u" or " + Without(shown, u',') + u".";
  }
  return std::nullopt;
}

}  // namespace kav
