// The message boxes. Each function returns when its box is closed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QObject;
class QWidget;

namespace kav {

/// Something cannot be done: `text` with a stop icon; `more`, if not empty, stands below it.
void ShowStop(QWidget* parent, std::u16string_view text, std::u16string_view more = {});

/// Something the user should know before going on: `text` with a warning icon.
void ShowNotice(QWidget* parent, std::u16string_view text);

/// Asks `question` and returns whether the answer was Yes. Closing the box is a No. `more`, if not
/// empty, stands below the question.
bool AskYesNo(QWidget* parent, std::u16string_view question, std::u16string_view more = {});

enum class Decision { Yes, No, Cancel };

/// Asks `question`. Closing the box is a Cancel.
Decision AskYesNoCancel(QWidget* parent, std::u16string_view question);

/// As AskYesNo, for what loses much: the Enter key answers No.
bool AskNoOrYes(QWidget* parent, std::u16string_view question);

/// Asks `question` with one button for each of `answers`, and Cancel. Returns the index of the
/// answer; nullopt for Cancel and for closing the box.
std::optional<std::size_t> AskWhich(QWidget* parent, std::u16string_view question,
                                    const std::vector<std::u16string>& answers);

/// Gives `widget` the look of the other boxes, if it is one that a dialog for files made by itself.
void DressFileBox(QObject& widget);

/// Name, version and purpose of the program.
void ShowAbout(QWidget* parent);

}  // namespace kav
