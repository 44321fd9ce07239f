// The settings of a user as one file, to keep or to take to another machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace kav {

/// Asks for a file, and makes `text` its content.
void SaveExport(QWidget* parent, std::string_view text);

/// Asks for a file, and whether what it holds is to stand in place of everything that is stored.
/// The text of the file; nullopt if the user gives it up, or it cannot be read, which is told.
std::optional<std::string> AskForImport(QWidget* parent);

}  // namespace kav
