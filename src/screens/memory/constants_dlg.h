// The dialog of the constants: the user chooses the value of one.
#pragma once

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace kav {

/// The value of the constant that the user chose, as it stands in the file; nullopt if none was
/// chosen. If the file cannot be read, the user is told why and finds the list empty.
std::optional<std::u16string> RunConstants(QWidget* parent);

/// The same with a file in one of `folders`, see LoadConstants.
std::optional<std::u16string> RunConstants(QWidget* parent,
                                           const std::vector<std::string>& folders);

}  // namespace kav
