#include "settings/file_error.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace kav::file_error_test {
namespace {

TEST(FileError, EachCauseThatTheUserCanActOnIsToldApart) {
  const struct {
    int number;
    FileError error;
  } rows[] = {
      {ENOENT, FileError::NotThere},     {ENOTDIR, FileError::BadPath},
      {ELOOP, FileError::LinkLoop},      {ENAMETOOLONG, FileError::NameTooLong},
      {EISDIR, FileError::NotAFile},     {ENXIO, FileError::NotAFile},
      {EACCES, FileError::NoPermission}, {EPERM, FileError::NoPermission},
      {EROFS, FileError::ReadOnly},      {ENOSPC, FileError::Full},
      {EDQUOT, FileError::Full},         {EFBIG, FileError::SizeLimit},
      {EMFILE, FileError::TooManyOpen},  {ENFILE, FileError::TooManyOpen},
      {ENOMEM, FileError::NoMemory},     {EIO, FileError::Device},
      {ENOLCK, FileError::Device},
  };
  for (const auto& row : rows) EXPECT_EQ(FileErrorFromErrno(row.number), row.error) << row.number;
}

}  // namespace
}  // namespace kav::file_error_test
