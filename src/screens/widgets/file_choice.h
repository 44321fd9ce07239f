// Where a file is to be read from or written to: the user's choice.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class QWidget;

namespace kav {

/// Kinds of files as the user chooses among them, such as "TXT(*.txt)".
struct FileKind {
  std::u16string_view filter;
  std::u16string_view suffix;  ///< added to a name without one, such as "txt"
};

/// The path (in the encoding of the file system) of an existing file, or of a file that may be
/// written: the user was asked where there is one already. nullopt where nothing was chosen. Both
/// begin in the folder of the last choice.
std::optional<std::string> AskFileToOpen(QWidget* parent, const FileKind& kind);
std::optional<std::string> AskFileToSave(QWidget* parent, const FileKind& kind);

/// A file that may be written, and the number of its kind.
struct FileToSave {
  std::string path;
  std::size_t kind;
};

/// The same where the user chooses among `kinds`, of which there is at least one; the first is
/// preset. The kind is the one that the name's suffix says, else the chosen one.
std::optional<FileToSave> AskFileToSave(QWidget* parent, std::span<const FileKind> kinds);

}  // namespace kav
