// Files that are read in one go and replaced in one step, so that nobody ever sees a part of one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "common/expected.h"
#include "settings/file_error.h"

namespace kav {

/// The path that `path` leads to if its last part is a symbolic link, or a chain of them; else
/// `path` itself. No file need exist there. To replace the file under this name leaves the links in
/// place. Of a chain without an end the answer is some link, which cannot be opened.
std::string FollowLinks(std::string path);

/// All bytes of the file `path`. Fails with FileError::TooLarge if there are more than `limit`, and
/// with FileError::NotAFile for a folder, a device or a pipe, without waiting for it.
Expected<std::string, FileError> ReadWholeFile(const std::string& path, std::size_t limit);

/// Makes the missing folders on the way to the file `path`, open to their owner only. A failure
/// shows when the file is made.
void MakeFoldersFor(const std::string& path);

/// Makes `content` the content of the file `path`, or leaves all as it was and answers why. A
/// reader at any moment, even after a crash, finds the old content or the new one: a new file is
/// written in the same folder, flushed to the disk and renamed. It takes over the owner and the
/// permissions of the old file; if there was none, only its owner may open it.
std::optional<FileError> ReplaceFile(const std::string& path, std::string_view content);

/// ReplaceFile for a name that the user chose: a link stays, and the file that it leads to is
/// replaced. Fails with FileError::NotAFile for a folder, a device or a pipe.
std::optional<FileError> SaveFile(const std::string& path, std::string_view content);

/// Removes the new files that ReplaceFile left beside `path` when its process was killed half-way.
/// The caller must keep other writers of `path` away meanwhile.
void RemoveLeftovers(const std::string& path);

/// Renames the file `path` to `path` + ".damaged" or, if that name is taken, ".damaged-2" and so
/// on: nothing is overwritten. The caller must keep other writers of `path` away meanwhile.
std::optional<FileError> KeepAside(const std::string& path);

}  // namespace kav
