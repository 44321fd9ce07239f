// The constants on the screen: a list to choose the value of one from.
#pragma once

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace kav {

/// The value of the constant that the user chose, as it stands in the file; nullopt where none was
/// chosen. Without the file, the user is told and finds the list empty.
std::optional<std::u16string> RunConstants(QWidget* parent);

/// The same for a file that is in one of `folders`, see LoadConstants.
std::optional<std::u16string> RunConstants(QWidget* parent,
                                           const std::vector<std::string>& folders);

}  // namespace kav
