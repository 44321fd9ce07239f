// The boxes in which the program speaks to its user. Each waits until it is answered.
#pragma once

#include <string_view>

class QWidget;

namespace kav {

/// Something cannot be done: `text` with a stop icon.
void ShowStop(QWidget* parent, std::u16string_view text);

/// Something the user should know before going on: `text` with a warning icon.
void ShowNotice(QWidget* parent, std::u16string_view text);

/// `question` with the answers Yes and No; whether it was Yes. Closing the box is a No.
/// What `more` says, where it says something, stands below the question.
bool AskYesNo(QWidget* parent, std::u16string_view question, std::u16string_view more = {});

/// Name, version and purpose of the program.
void ShowAbout(QWidget* parent);

}  // namespace kav
