// The dialogs in which the user chooses a file to open or to save.
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
  std::u16string_view suffix;  ///< added to a name without one, such as "txt"; empty for none
};

/// The path of the chosen file, in the encoding of the file system; nullopt if none was chosen. A
/// file to open exists. A file to save may be written: if it exists, the user agreed. Both dialogs
/// begin in the folder of the last choice. They are for files of data: `kind` is preset, and others
/// by which such files go are offered too.
std::optional<std::string> AskFileToOpen(QWidget* parent, const FileKind& kind);
std::optional<std::string> AskFileToSave(QWidget* parent, const FileKind& kind);

/// A file that may be written, and the number of its kind.
struct FileToSave {
  std::string path;
  std::size_t kind;
};

/// The same for a file of one of `kinds` (at least one; the first is preset). Its kind follows from
/// the suffix of the name, or else from the user's choice.
std::optional<FileToSave> AskFileToSave(QWidget* parent, std::span<const FileKind> kinds);

}  // namespace kav
