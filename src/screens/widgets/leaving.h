// What is asked before something unsaved goes.
#pragma once

#include <functional>
#include <string_view>

class QWidget;

namespace kav {

/// What would take the unsaved work of a screen away.
enum class LeaveReason {
  Ending,     ///< the window is closed, or the program is to end
  Switching,  ///< another screen takes the place of this one
  Loading,    ///< a file replaces what the screen holds
};

/// How saving ended. After Failed, the user has been told why.
enum class SaveEnd { Saved, Cancelled, Failed };

/// Asks `question`, and on Yes calls `save`. Answers whether to go on: not after a save that
/// failed. Before the end, the question can be cancelled, and nothing goes on after a cancelled
/// save either.
bool AskToSave(QWidget* parent, LeaveReason reason, std::u16string_view question,
               const std::function<SaveEnd()>& save);

}  // namespace kav
