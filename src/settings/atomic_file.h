// A file that is only ever seen whole: read in one go, and replaced in one step.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "settings/file_error.h"

namespace kav {

/// Where `path` leads when its last part is a symbolic link, or a chain of them; the file itself
/// need not exist. Replacing the file under this name leaves the links in place. A chain without an
/// end comes back as some link of it, which then cannot be opened.
std::string FollowLinks(std::string path);

/// All bytes of the file `path`. FileError::TooLarge, without reading, where there are more than
/// `limit`; FileError::NotAFile for a folder, a device or a pipe, which are never waited for.
Expected<std::string, FileError> ReadWholeFile(const std::string& path, std::size_t limit);

/// Makes the folders that `path` needs and that are missing, open to their owner only. A failure
/// shows when the file is made.
void MakeFoldersFor(const std::string& path);

/// Makes `content` the content of the file `path`, or leaves all as it was and says why. Whoever
/// opens the file meanwhile, and whoever comes after a crash at any moment, finds the old content
/// or the new one: a new file is written beside it, flushed to the disk and renamed. The new file
/// has the owner and the permissions of the old one, or is open to its owner only where there was
/// none.
std::optional<FileError> ReplaceFile(const std::string& path, std::string_view content);

/// ReplaceFile for a name that the user chose: a link stays, and the file that it leads to is
/// replaced. FileError::NotAFile for a folder, a device or a pipe.
std::optional<FileError> SaveFile(const std::string& path, std::string_view content);

/// Removes what ReplaceFile left beside `path` where its process was killed half-way. Only for who
/// keeps other writers of `path` away meanwhile.
void RemoveLeftovers(const std::string& path);

/// Renames the file `path` to `path` + ".damaged", or ".damaged-2" and so on where the name is
/// taken: nothing is overwritten. Only for who keeps other writers of `path` away meanwhile.
std::optional<FileError> KeepAside(const std::string& path);

}  // namespace kav
