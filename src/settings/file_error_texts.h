// What the user is told about a file that could not be read or written.
#pragma once

#include <string>
#include <string_view>

#include "common/visible_text.h"
#include "settings/file_error.h"

namespace kav {

inline constexpr std::u16string_view kDiskFails = u"the disk reports an error; check the disk";

/// Why, and what to do: a clause to follow "...: ", without a full stop at its end.
inline std::u16string_view ReasonAndRemedy(FileError error) {
  switch (error) {
    case FileError::NotThere:
    case FileError::BadPath:
      return u"a folder on the way there is missing and cannot be made; check the path";
    case FileError::LinkLoop:
      return u"the links on the way there lead in a circle; check the path";
    case FileError::NameTooLong:
      return u"the path, or a name in it, is too long; choose a shorter one";
    case FileError::NotAFile:
      return u"a folder or a device has this name; move it away or choose another file";
    case FileError::TooLarge:
      return u"the file would be too large to be read again; delete what is not needed";
    case FileError::Busy:
      return u"another program keeps the file locked; close other copies of the calculator";
    case FileError::NoPermission:
      return u"there is no permission; check who owns the file and its folder, and who may write";
    case FileError::ReadOnly:
      return u"the disk is read-only; make it writable or choose another place";
    case FileError::Full:
      return u"the disk is full or its quota is used up; free some space";
    case FileError::SizeLimit:
      return u"no file may grow so large here; raise the limit (ulimit -f) or choose another place";
    case FileError::TooManyOpen:
      return u"too many files are open; close other programs or raise the limit (ulimit -n)";
    case FileError::NoMemory:
      return u"there is not enough memory; close other programs";
    case FileError::Device:
      break;
  }
  return kDiskFails;
}

/// Why a file that the user chose could not be read, and what to do: a clause as above.
inline std::u16string_view ReasonOfReading(FileError error) {
  switch (error) {
    case FileError::NotThere:
      return u"there is no such file; check its name";
    case FileError::BadPath:
      return u"a folder on the way there is none; check the path";
    case FileError::NotAFile:
      return u"a folder or a device has this name; choose a file";
    case FileError::NoPermission:
      return u"there is no permission; check who owns the file, and who may read it";
    case FileError::LinkLoop:
    case FileError::NameTooLong:
    case FileError::TooManyOpen:
    case FileError::NoMemory:
      return ReasonAndRemedy(error);
    default:
      return kDiskFails;
  }
}

/// The sentence "`what` `path`: `reason`.", for example with "The data cannot be saved in ".
inline std::u16string FileFailure(std::u16string_view what, std::u16string_view path,
                                  std::u16string_view reason) {
  return std::u16string(what)
      .append(WithVisibleControls(path))
      .append(u": ")
      .append(reason)
      .append(u".");
}

}  // namespace kav
