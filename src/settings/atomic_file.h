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

/// The folder that the file `path` is in, as a path that can be opened.
std::string FolderOf(std::string_view path);

/// Makes the missing folders on the way to the file `path`, open to their owner only, who is that
/// of the folder they are in, if this user may decide that. A failure shows when the file is made.
void MakeFoldersFor(const std::string& path);

/// Whom a file that was not there before belongs to: as ever, or, if this user may give it away, to
/// whom its folder belongs.
enum class NewFileOwner { ThisUser, OwnerOfFolder };

/// Makes `content` the content of the file `path`, or leaves all as it was and answers why. A
/// reader at any moment, even after a crash, finds the old content or the new one: a new file is
/// written in the same folder, flushed to the disk and renamed. It takes over the owner, the group
/// and the permissions of the old file, as far as this user may set them; if there was none, it has
/// the permissions that the user's mask gives.
std::optional<FileError> ReplaceFile(const std::string& path, std::string_view content,
                                     NewFileOwner owner = NewFileOwner::ThisUser);

/// ReplaceFile for a name that the user chose: a link stays, and the file that it leads to is
/// replaced. Fails with FileError::NotAFile for a folder, a device or a pipe.
std::optional<FileError> SaveFile(const std::string& path, std::string_view content);

/// Removes the new files that ReplaceFile left beside `path` when its process was killed half-way.
/// The caller must keep other writers of `path` away meanwhile.
void RemoveLeftovers(const std::string& path);

/// What is added to the name of a file that is kept aside.
inline constexpr std::string_view kDamagedMark = ".damaged";
inline constexpr std::string_view kBeforeImportMark = ".before-import";

/// Renames the file `path` to `path` + `mark` or, if that name is taken, `mark` + "-2" and so on:
/// nothing is overwritten. The caller must keep other writers of `path` away meanwhile.
std::optional<FileError> KeepAside(const std::string& path, std::string_view mark);

/// ReplaceFile for a file that is kept aside, under a name as above. If it fails, the file keeps
/// its own name (on a disk without hard links the one aside).
std::optional<FileError> ReplaceAndKeep(const std::string& path, std::string_view content,
                                        std::string_view mark, NewFileOwner owner);

}  // namespace kav
