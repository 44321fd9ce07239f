#include "settings/atomic_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <string>
#include <vector>

#include "settings/file_descriptor.h"
#include "support/temporary_folder.h"

namespace kav::atomic_file_test {
namespace {

using std::string_literals::operator""s;

constexpr std::size_t kLimit = 1000;
// A user that owns nothing: what root may not do is tried as this one.
constexpr uid_t kNobody = 65534;

using Names = std::vector<std::string>;

TEST(FollowLinks, AFileIsItself) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "");
  EXPECT_EQ(FollowLinks(folder.File("a")), folder.File("a"));
  EXPECT_EQ(FollowLinks(folder.File("missing")), folder.File("missing"));
  EXPECT_EQ(FollowLinks(""), "");
}

TEST(FollowLinks, AChainOfRelativeAndAbsoluteLinksLeadsToItsEnd) {
  const TemporaryFolder folder;
  mkdir(folder.File("sub").c_str(), 0700);
  symlink("sub/b", folder.File("a").c_str());
  symlink("../c", folder.File("sub/b").c_str());
  symlink(folder.File("d").c_str(), folder.File("c").c_str());
  EXPECT_EQ(FollowLinks(folder.File("a")), folder.File("d"));
}

TEST(FollowLinks, ALoopEnds) {
  const TemporaryFolder folder;
  symlink("b", folder.File("a").c_str());
  symlink("a", folder.File("b").c_str());
  const std::string end = FollowLinks(folder.File("a"));
  EXPECT_TRUE(end == folder.File("a") || end == folder.File("b")) << end;
}

TEST(ReadWholeFile, GivesEveryByte) {
  const TemporaryFolder folder;
  for (const auto& content : {""s, "x"s, "\0\r\n\xFF"s, std::string(kLimit, 'y')}) {
    PutFile(folder.File("a"), content);
    const auto got = ReadWholeFile(folder.File("a"), kLimit);
    ASSERT_TRUE(got);
    EXPECT_EQ(*got, content);
  }
}

TEST(ReadWholeFile, ReadsFilesThatHaveNoSize) {
  const auto got = ReadWholeFile("/proc/self/status", 1 << 20);
  ASSERT_TRUE(got);
  EXPECT_EQ(got->substr(0, 5), "Name:");
}

TEST(ReadWholeFile, RefusesWhatItCannotGive) {
  const TemporaryFolder folder;
  PutFile(folder.File("large"), std::string(kLimit + 1, 'x'));
  mkfifo(folder.File("pipe").c_str(), 0600);
  symlink("loop", folder.File("loop").c_str());
  const std::vector<std::pair<std::string, FileError>> rows{
      {folder.File("missing"), FileError::NotThere},
      {folder.File("missing/a"), FileError::NotThere},
      {folder.File("large/a"), FileError::BadPath},
      {folder.File("loop"), FileError::LinkLoop},
      {folder.File(std::string(300, 'n')), FileError::NameTooLong},
      {folder.File("large"), FileError::TooLarge},
      {folder.Path(), FileError::NotAFile},
      {folder.File("pipe"), FileError::NotAFile},
      {"/dev/null", FileError::NotAFile},
      {"", FileError::NotThere},
  };
  for (const auto& [path, error] : rows) {
    const auto got = ReadWholeFile(path, kLimit);
    ASSERT_FALSE(got) << path;
    EXPECT_EQ(got.error(), error) << path;
  }
}

TEST(ReadWholeFile, AFileWithoutASizeIsHeldToTheLimitToo) {
  const auto got = ReadWholeFile("/proc/self/status", 100);
  ASSERT_FALSE(got);
  EXPECT_EQ(got.error(), FileError::TooLarge);
}

TEST(ReadWholeFile, AForeignFileIsAQuestionOfPermission) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "secret");
  chmod(folder.File("a").c_str(), 0);
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              const auto got = ReadWholeFile(folder.File("a"), kLimit);
              return !got && got.error() == FileError::NoPermission ? 0 : 1;
            }),
            0);
}

TEST(MakeFoldersFor, MakesEveryFolderForTheOwnerOnly) {
  const TemporaryFolder folder;
  MakeFoldersFor(folder.File("a/b/c.toml"));
  EXPECT_EQ(PermissionsOf(folder.File("a")), 0700U);
  EXPECT_EQ(PermissionsOf(folder.File("a/b")), 0700U);
  EXPECT_FALSE(Exists(folder.File("a/b/c.toml")));
}

TEST(MakeFoldersFor, LeavesFoldersThatAreThereAsTheyAre) {
  const TemporaryFolder folder;
  mkdir(folder.File("a").c_str(), 0750);
  MakeFoldersFor(folder.File("a/b/c.toml"));
  EXPECT_EQ(PermissionsOf(folder.File("a")), 0750U);
  EXPECT_TRUE(Exists(folder.File("a/b")));
}

TEST(ReplaceFile, MakesAFileAsTheMaskOfTheUserGives) {
  const struct {
    mode_t mask;
    unsigned permissions;
  } rows[] = {{0, 0666}, {022, 0644}, {002, 0664}, {027, 0640}, {077, 0600}};
  for (const auto& row : rows) {
    const TemporaryFolder folder;
    const mode_t before = umask(row.mask);
    EXPECT_EQ(ReplaceFile(folder.File("a"), "content\0"s), std::nullopt);
    umask(before);
    EXPECT_EQ(FileContent(folder.File("a")), "content\0"s);
    EXPECT_EQ(PermissionsOf(folder.File("a")), row.permissions);
    EXPECT_EQ(folder.Names(), Names{"a"});
  }
}

TEST(ReplaceFile, KeepsThePermissionsThatTheUserGave) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  for (const unsigned permissions : {0640U, 0666U, 0600U, 0700U}) {
    chmod(folder.File("a").c_str(), permissions);
    EXPECT_EQ(ReplaceFile(folder.File("a"), "new"), std::nullopt);
    EXPECT_EQ(PermissionsOf(folder.File("a")), permissions);
  }
}

TEST(ReplaceFile, KeepsTheOwnerWhereThisMayBe) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  ASSERT_EQ(chown(folder.File("a").c_str(), kNobody, kNobody), 0);
  EXPECT_EQ(ReplaceFile(folder.File("a"), "new"), std::nullopt);
  EXPECT_EQ(StatusOf(folder.File("a")).st_uid, kNobody);
  EXPECT_EQ(StatusOf(folder.File("a")).st_gid, kNobody);
  EXPECT_EQ(FileContent(folder.File("a")), "new");
}

TEST(ReplaceFile, AReaderKeepsTheFileThatItOpened) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  const int reader = open(folder.File("a").c_str(), O_RDONLY);
  EXPECT_EQ(ReplaceFile(folder.File("a"), "new"), std::nullopt);
  char content[4] = {};
  EXPECT_EQ(read(reader, content, 3), 3);
  EXPECT_STREQ(content, "old");
  close(reader);
}

TEST(ReplaceFile, ANameInTheWorkingFolderNeedsNoFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(InAnotherProcess([&] {
              if (chdir(folder.Path().c_str()) != 0) return 2;
              MakeFoldersFor("a");
              return ReplaceFile("a", "content") ? 1 : 0;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "content");
}

TEST(ReplaceFile, WhatCannotBeWrittenLeavesAllAsItWas) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "old");
  mkdir(folder.File("folder").c_str(), 0700);
  PutFile(folder.File("folder/in"), "");
  EXPECT_EQ(ReplaceFile(folder.File("file/a"), "new"), FileError::BadPath);
  EXPECT_EQ(ReplaceFile(folder.File("missing/a"), "new"), FileError::NotThere);
  EXPECT_EQ(ReplaceFile(folder.File("folder"), "new"), FileError::NotAFile);
  EXPECT_EQ(FileContent(folder.File("file")), "old");
  EXPECT_EQ(folder.Names(), (Names{"file", "folder"}));
}

TEST(ReplaceFile, WithoutSpaceTheOldContentStays) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  EXPECT_EQ(InAnotherProcess([&] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{4096, 4096};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
              const auto error = ReplaceFile(folder.File("a"), std::string(4097, 'x'));
              return error == FileError::SizeLimit ? 0 : 1;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "old");
  EXPECT_EQ(folder.Names(), Names{"a"});
}

TEST(ReplaceFile, AFileMadeReadOnlyIsNotReplaced) {
  const TemporaryFolder folder;
  chmod(folder.Path().c_str(), 0777);
  PutFile(folder.File("a"), "old");
  chmod(folder.File("a").c_str(), 0444);
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              return ReplaceFile(folder.File("a"), "new") == FileError::NoPermission ? 0 : 1;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "old");
  EXPECT_EQ(folder.Names(), Names{"a"});
}

TEST(ReplaceFile, AFolderMadeReadOnlyIsAQuestionOfPermission) {
  const TemporaryFolder folder;
  chmod(folder.Path().c_str(), 0555);
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              return ReplaceFile(folder.File("a"), "new") == FileError::NoPermission ? 0 : 1;
            }),
            0);
  EXPECT_TRUE(folder.Names().empty());
}

TEST(SaveFile, ReplacesTheFileThatALinkLeadsTo) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "old");
  symlink("file", folder.File("link").c_str());
  EXPECT_EQ(SaveFile(folder.File("link"), "new"), std::nullopt);
  EXPECT_EQ(FileContent(folder.File("file")), "new");
  EXPECT_EQ(FollowLinks(folder.File("link")), folder.File("file"));
  EXPECT_EQ(SaveFile(folder.File("other"), "first"), std::nullopt);
  EXPECT_EQ(FileContent(folder.File("other")), "first");
}

TEST(SaveFile, RefusesWhatIsNoFile) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  mkfifo(folder.File("pipe").c_str(), 0600);
  symlink("pipe", folder.File("link").c_str());
  for (const char* name : {"folder", "pipe", "link"}) {
    EXPECT_EQ(SaveFile(folder.File(name), "new"), FileError::NotAFile) << name;
  }
  EXPECT_EQ(folder.Names(), (Names{"folder", "link", "pipe"}));
}

TEST(RemoveLeftovers, RemovesNewFilesOfThisNameAndNothingElse) {
  const TemporaryFolder folder;
  const Names others{
      "a", "a.lock", "a.new-", "a.new-12345", "a.new-1234567", "ab.new-123456", "a.newx123456"};
  for (const auto& name : others) PutFile(folder.File(name), "");
  PutFile(folder.File("a.new-123456"), "");
  PutFile(folder.File("a.new-ABCdef"), "");
  RemoveLeftovers(folder.File("a"));
  Names expected = others;
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(folder.Names(), expected);
}

TEST(RemoveLeftovers, AMissingFolderHasNone) {
  const TemporaryFolder folder;
  RemoveLeftovers(folder.File("missing/a"));
  EXPECT_TRUE(folder.Names().empty());
}

TEST(KeepAside, OverwritesNothing) {
  const TemporaryFolder folder;
  for (const char* content : {"first", "second", "third"}) {
    PutFile(folder.File("a"), content);
    EXPECT_EQ(KeepAside(folder.File("a"), kDamagedMark), std::nullopt);
  }
  EXPECT_EQ(FileContent(folder.File("a.damaged")), "first");
  EXPECT_EQ(FileContent(folder.File("a.damaged-2")), "second");
  EXPECT_EQ(FileContent(folder.File("a.damaged-3")), "third");
  EXPECT_FALSE(Exists(folder.File("a")));
}

TEST(KeepAside, ALinkThatLeadsNowhereIsNotOverwrittenEither) {
  const TemporaryFolder folder;
  symlink("nowhere", folder.File("a.damaged").c_str());
  PutFile(folder.File("a"), "damaged");
  EXPECT_EQ(KeepAside(folder.File("a"), kDamagedMark), std::nullopt);
  EXPECT_EQ(FileContent(folder.File("a.damaged-2")), "damaged");
}

TEST(ReplaceAndKeep, KeepsTheOldFileAsideAndItsPermissions) {
  const TemporaryFolder folder;
  PutFile(folder.File("a.damaged"), "earlier");
  PutFile(folder.File("a"), "?");
  chmod(folder.File("a").c_str(), 0640);
  EXPECT_EQ(ReplaceAndKeep(folder.File("a"), "new", kDamagedMark, NewFileOwner::ThisUser),
            std::nullopt);
  EXPECT_EQ(folder.Names(), (Names{"a", "a.damaged", "a.damaged-2"}));
  EXPECT_EQ(FileContent(folder.File("a")), "new");
  EXPECT_EQ(FileContent(folder.File("a.damaged-2")), "?");
  EXPECT_EQ(FileContent(folder.File("a.damaged")), "earlier");
  EXPECT_EQ(PermissionsOf(folder.File("a")), 0640U);
}

TEST(ReplaceAndKeep, LeavesTheOldFileInItsPlaceIfTheNewCannotBeWritten) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "?");
  EXPECT_EQ(InAnotherProcess([&] {
              SurviveSizeLimit();
              const rlimit limit{0, 0};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
              const auto error =
                  ReplaceAndKeep(folder.File("a"), "new", kDamagedMark, NewFileOwner::ThisUser);
              return error == FileError::SizeLimit ? 0 : 1;
            }),
            0);
  EXPECT_EQ(FileContent(folder.File("a")), "?");
  EXPECT_EQ(folder.Names(), Names{"a"});
}

TEST(KeepAside, AMissingFileIsRefused) {
  const TemporaryFolder folder;
  EXPECT_EQ(KeepAside(folder.File("a"), kDamagedMark), FileError::NotThere);
}

}  // namespace
}  // namespace kav::atomic_file_test
