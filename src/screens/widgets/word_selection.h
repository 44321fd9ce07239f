// What a double click selects.
#pragma once

class QEvent;
class QObject;

namespace kav {

/// If `event` is a double click into a text that is written by letters, has `watched` handle it,
/// and selects the whole number, name or sign that was meant; otherwise does nothing. Whether it
/// was.
bool SelectWord(QObject& watched, QEvent& event);

}  // namespace kav
