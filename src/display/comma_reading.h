// Commas in numbers that users type and paste: half of the world writes 1,5 for one and a half,
// the other half 1,234 for a thousand and more. Which is meant is never guessed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

enum class CommaMeaning {
  DecimalPoint,  ///< 1,5 is 1.5
  Grouping,      ///< 1,234 is 1234
  Separator,     ///< 1,5 is two cells, 1 and 5
};

struct CommaQuestion {
  std::u16string number;               ///< the first of the text with a comma of several meanings
  std::vector<CommaMeaning> meanings;  ///< those that all commas of the text can have; not empty
};

/// What to ask before `text` becomes cells. nullopt if no comma stands in a number, or if one shows
/// that commas separate cells: as in 1,2,3 and in 1.5,2.
std::optional<CommaQuestion> QuestionOfCommas(std::u16string_view text);

/// The question in one short line.
std::u16string CommaQuestionText(const CommaQuestion& question);

/// What `number`, such as 1,5, becomes with that meaning: "1.5", "15", "1 | 5".
std::u16string CommaMeaningText(std::u16string_view number, CommaMeaning meaning);

/// `text` with the commas in its numbers as points, left out or, for Separator, as they are.
std::u16string WithCommas(std::u16string_view text, CommaMeaning meaning);

/// Why `field`, a text for one number, is refused: its comma could be a decimal one, as in 1,5 and
/// 1,234 and 1.234,5. nullopt if it could not, as in 1,234.5 and 1,234,567.
std::optional<std::u16string> CommaRefusal(std::u16string_view field);

/// Whether `digits` is one to three digits and then one or more groups of `mark` and three digits.
bool IsGroupedBy(char16_t mark, std::u16string_view digits);

/// `line`, an expression or a number, without the commas between the thousands of its numbers, as
/// far as they can be nothing else: as in 1,234,567 and in 1,234.5. Commas between arguments stay.
std::u16string WithoutThousands(std::u16string_view line);

/// What to ask before `line`, an expression or a number, is taken: about its first number with a
/// comma that could be a decimal one, unless the comma is between arguments. The meanings are those
/// that make it a number, Grouping first. nullopt if there is no such number.
std::optional<CommaQuestion> QuestionOfLine(std::u16string_view line);

/// The question in one short line: "1234 or 1.234?".
std::u16string LineQuestionText(const CommaQuestion& question);

/// `line` with that number, and all others in which the comma could have the same meanings, read
/// with `meaning`.
std::u16string LineWithCommas(std::u16string_view line, const CommaQuestion& question,
                              CommaMeaning meaning);

}  // namespace kav
