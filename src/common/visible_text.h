// Names that others chose, as messages show them.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// `text` with "\x1B" in place of the character of that number, and so on for every control
/// character: whoever names a file must not be able to command the terminal that shows the name.
std::u16string WithVisibleControls(std::u16string_view text);

/// A path, or any name in UTF-8, for a message.
std::u16string ShownName(std::string_view name);

}  // namespace kav
