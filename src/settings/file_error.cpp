#include "settings/file_error.h"

#include <cerrno>

namespace kav {

FileError FileErrorFromErrno(int error) {
  switch (error) {
    case ENOENT:
      return FileError::NotThere;
    case ENOTDIR:
      return FileError::BadPath;
    case ELOOP:
      return FileError::LinkLoop;
    case ENAMETOOLONG:
      return FileError::NameTooLong;
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
      return FileError::Full;
    case EFBIG:
      return FileError::SizeLimit;
    case EMFILE:
    case ENFILE:
      return FileError::TooManyOpen;
    case ENOMEM:
      return FileError::NoMemory;
    default:
      return FileError::Device;
  }
}

}  // namespace kav
