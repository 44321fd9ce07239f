// Whom a file belongs to, and who may open it.
#pragma once

#include <sys/types.h>

#include <string>

#include "settings/file_descriptor.h"

namespace kav {

/// What open takes for a file that the user's mask alone decides about.
inline constexpr mode_t kAsTheMaskGives = 0666;
inline constexpr mode_t kOwnerOnly = 0600;

/// Gives `file` the permissions, the group and the owner of the file `replaced`, as far as this
/// user may. Where the group cannot be kept, its permissions are not given to another one.
void TakeOverRights(const std::string& replaced, const FileDescriptor& file);

/// Gives the file or folder `made`, new in `folder` and this user's, to the owner of that folder,
/// if this user may give files away: what root makes in a user's home must not shut the user out.
void GiveToOwnerOf(const std::string& folder, const FileDescriptor& made);

}  // namespace kav
