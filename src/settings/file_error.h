// Why a file could not be read or written, told apart by what the user can do about it.
#pragma once

namespace kav {

enum class FileError {
  NotThere,      ///< nothing has this name
  BadPath,       ///< a folder of the path is no folder, or cannot be made
  LinkLoop,      ///< links on the path lead in a circle
  NameTooLong,   ///< the path, or a name in it, is longer than the system takes
  NotAFile,      ///< a folder, a device or the like has this name
  TooLarge,      ///< more than may be read
  Busy,          ///< another program keeps it locked
  NoPermission,  ///< this user may not
  ReadOnly,      ///< the whole disk cannot be written
  Full,          ///< no space, or no more of it for this user
  SizeLimit,     ///< larger than this process, or this disk, lets a file grow
  TooManyOpen,   ///< this process, or the system, may open no more files
  NoMemory,      ///< the memory does not suffice
  Device,        ///< anything else: the disk itself fails
};

/// The FileError that the number `error`, left in errno by a system call, stands for.
FileError FileErrorFromErrno(int error);

}  // namespace kav
