#include "settings/file_rights.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "settings/atomic_file.h"
#include "support/temporary_folder.h"

namespace kav::file_rights_test {
namespace {

// A user that owns nothing.
constexpr uid_t kNobody = 65534;

FileDescriptor Made(const std::string& path) {
  return FileDescriptor(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, kOwnerOnly));
}

TEST(FileRights, AreThoseOfTheFileReplaced) {
  const TemporaryFolder folder;
  PutFile(folder.File("old"), "");
  const FileDescriptor file = Made(folder.File("new"));
  for (const unsigned permissions : {0644U, 0600U, 0751U, 0U}) {
    chmod(folder.File("old").c_str(), permissions);
    TakeOverRights(folder.File("old"), file);
    EXPECT_EQ(PermissionsOf(folder.File("new")), permissions);
  }
}

TEST(FileRights, StayWithoutAFileToTakeThemFrom) {
  const TemporaryFolder folder;
  const FileDescriptor file = Made(folder.File("new"));
  TakeOverRights(folder.File("old"), file);
  GiveToOwnerOf(folder.File("missing"), file);
  GiveToOwnerOf(folder.Path(), file);
  GiveToOwnerOf(folder.Path(), FileDescriptor(-1));
  EXPECT_EQ(PermissionsOf(folder.File("new")), 0600U);
  EXPECT_EQ(StatusOf(folder.File("new")).st_uid, geteuid());
}

// A file of a group that works on it together stays one of the group whoever saves it.
TEST(FileRights, KeepGroupAndPermissionsOfAnotherOwnersFile) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can become another user";
  constexpr gid_t kTeam = 65533;
  const TemporaryFolder folder;
  chmod(folder.Path().c_str(), 0777);
  PutFile(folder.File("a"), "old");
  ASSERT_EQ(chown(folder.File("a").c_str(), 0, kTeam), 0);
  chmod(folder.File("a").c_str(), 0664);
  EXPECT_EQ(InAnotherProcess([&] {
              if (setgroups(1, &kTeam) != 0 || setegid(kNobody) != 0 || seteuid(kNobody) != 0) {
                return 2;
              }
              return ReplaceFile(folder.File("a"), "new") ? 1 : 0;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "new");
  EXPECT_EQ(PermissionsOf(folder.File("a")), 0664U);
  EXPECT_EQ(StatusOf(folder.File("a")).st_gid, kTeam);
}

TEST(FileRights, WhatIsMadeForTheOwnerOfTheFolderIsTheirs) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  const TemporaryFolder folder;
  ASSERT_EQ(chown(folder.Path().c_str(), kNobody, kNobody), 0);
  MakeFoldersFor(folder.File("a/b/c"));
  EXPECT_EQ(ReplaceFile(folder.File("a/b/c"), "new", NewFileOwner::OwnerOfFolder), std::nullopt);
  EXPECT_EQ(ReplaceFile(folder.File("a/b/d"), "new"), std::nullopt);
  for (const char* name : {"a", "a/b", "a/b/c"}) {
    EXPECT_EQ(StatusOf(folder.File(name)).st_uid, kNobody) << name;
  }
  EXPECT_EQ(StatusOf(folder.File("a/b/d")).st_uid, 0U);
}

}  // namespace
}  // namespace kav::file_rights_test
