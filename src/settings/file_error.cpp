#include "settings/file_error.h"

#include <cerrno>

namespace kav {

FileError FileErrorFromErrno(int error) {
  switch (error) {
    case ENOENT:
      return FileError::NotThere;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
      return FileError::BadPath;
    case EISDIR:
    case ENXIO:
      return FileError::NotAFile;
    case EACCES:
    case EPERM:
      return FileError::NoPermission;
    case EROFS:
      return FileError::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileError::Full;
    default:
      return FileError::Device;
  }
}

}  // namespace kav
