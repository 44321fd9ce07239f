// What the user reads of the history of all sessions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/number_text.h"

namespace kav {

inline constexpr std::u16string_view kHistoryEntry = u"&History";
inline constexpr std::u16string_view kHistoryTip =
    u"Show or hide the lines of all sessions, with their answers";

inline constexpr std::string_view kHistoryKeys = "Ctrl+H";

inline constexpr std::u16string_view kHistoryName = u"History";
inline constexpr std::u16string_view kSearchHistory = u"Search the history";
inline constexpr std::u16string_view kPastLinesName = u"Past lines";

// The buttons, and what each does.
inline constexpr std::u16string_view kInsertLine = u"Line";
inline constexpr std::u16string_view kInsertLineTip = u"Insert the line (Enter)";
inline constexpr std::u16string_view kInsertAnswer = u"Answer";
inline constexpr std::u16string_view kInsertAnswerTip = u"Insert the answer (Shift+Enter)";
inline constexpr std::u16string_view kDeleteLine = u"Delete";
inline constexpr std::u16string_view kDeleteLineTip = u"Delete the line from the history (Delete)";
inline constexpr std::u16string_view kUndoDelete = u"Undo";
inline constexpr std::u16string_view kUndoDeleteTip = u"Put the deleted line back (Ctrl+Z)";
inline constexpr std::u16string_view kClearHistory = u"Clear";
inline constexpr std::u16string_view kClearHistoryTip = u"Delete all lines of the history";
inline constexpr std::u16string_view kKeepHistory = u"Keep";
inline constexpr std::u16string_view kKeepHistoryTip =
    u"Keep the lines of all sessions; if this is off, none is kept";
inline constexpr std::u16string_view kCloseHistory = u"×";
inline constexpr std::u16string_view kCloseHistoryName = u"Close the history";
inline constexpr std::u16string_view kCloseHistoryTip = u"Close the history (Ctrl+H)";

// In place of lines.
inline constexpr std::u16string_view kNoPastLines = u"What you calculate will be listed here.";
inline constexpr std::u16string_view kNoneIsKept = u"The history is off: no line is kept.";
inline constexpr std::u16string_view kNoneIsFound = u"No line or answer holds that text.";

/// "1 line", "2 lines" and so on.
inline std::u16string LinesCounted(std::size_t count) {
  return Widen(std::to_string(count)) + (count == 1 ? u" line" : u" lines");
}
inline std::u16string ClearHistoryQuestion(std::size_t count) {
  return u"Delete the whole history, " + LinesCounted(count) + u"? This cannot be undone.";
}
inline std::u16string DeleteKeptQuestion(std::size_t count) {
  return u"From now on no line is kept. Delete what is kept so far, " + LinesCounted(count) +
         u", too? This cannot be undone.";
}

}  // namespace kav
