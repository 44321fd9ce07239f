#include "settings/file_rights.h"

#include <sys/stat.h>
#include <unistd.h>

namespace kav {
namespace {

constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr uid_t kSameOwner = static_cast<uid_t>(-1);
constexpr gid_t kSameGroup = static_cast<gid_t>(-1);

}  // namespace

void TakeOverRights(const std::string& replaced, const FileDescriptor& file) {
  struct stat status {};
  if (stat(replaced.c_str(), &status) != 0) return;
  const bool isGroupKept = fchown(file.Number(), kSameOwner, status.st_gid) == 0;
  const mode_t lost = isGroupKept ? 0U : static_cast<mode_t>(S_IRWXG);
  // Before the owner, who alone may do it. Some disks keep no permissions: the file stays the
  // owner's then, and what it holds matters more.
  static_cast<void>(fchmod(file.Number(), status.st_mode & kPermissions & ~lost));
  [[maybe_unused]] const int refused = fchown(file.Number(), status.st_uid, kSameGroup);
}

void GiveToOwnerOf(const std::string& folder, const FileDescriptor& made) {
  struct stat parent {};
  if (!made.IsOpen() || stat(folder.c_str(), &parent) != 0) return;
  if (parent.st_uid == geteuid()) return;
  [[maybe_unused]] const int refused = fchown(made.Number(), parent.st_uid, parent.st_gid);
}

}  // namespace kav
