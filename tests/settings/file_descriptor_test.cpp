#include "settings/file_descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>
#include <string>
#include <thread>
#include <utility>

#include "support/temporary_folder.h"

namespace kav::file_descriptor_test {
namespace {

struct Pipe {
  FileDescriptor reading{-1};
  FileDescriptor writing{-1};
};

Pipe MakePipe() {
  std::array<int, 2> ends{-1, -1};
  // Neither end waits by itself.
  EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
  return {FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

TEST(FileDescriptor, IsClosedByItsLastOwner) {
  int number = -1;
  {
    Pipe pipe = MakePipe();
    number = pipe.reading.Number();
    const FileDescriptor owner = std::move(pipe.reading);
    EXPECT_EQ(owner.Number(), number);
    EXPECT_NE(fcntl(number, F_GETFD), -1);
  }
  EXPECT_EQ(fcntl(number, F_GETFD), -1);
  EXPECT_FALSE(FileDescriptor(-1).IsOpen());
}

TEST(WriteAll, WaitsForASlowReader) {
  Pipe pipe = MakePipe();
  const std::string text(1 << 20, 'x');  // far more than a pipe holds
  std::string got;
  std::thread reader([&] {
    std::array<char, 4096> block{};
    for (auto size = ReadSome(pipe.reading.Number(), block.data(), block.size()); size && *size > 0;
         size = ReadSome(pipe.reading.Number(), block.data(), block.size())) {
      got.append(block.data(), *size);
    }
  });
  EXPECT_EQ(WriteAll(pipe.writing.Number(), text), 0);
  pipe.writing = FileDescriptor(-1);
  reader.join();
  EXPECT_EQ(got, text);
}

TEST(WriteAll, AnswersTheErrorOfTheSystem) {
  EXPECT_EQ(WriteAll(-1, "x"), EBADF);
  EXPECT_EQ(WriteAll(-1, ""), 0);
  const FileDescriptor full(open("/dev/full", O_WRONLY | O_CLOEXEC));
  if (!full.IsOpen()) GTEST_SKIP() << "no /dev/full";
  EXPECT_EQ(WriteAll(full.Number(), "x"), ENOSPC);
}

TEST(ReadSome, TellsTheEndFromAnError) {
  Pipe pipe = MakePipe();
  EXPECT_EQ(WriteAll(pipe.writing.Number(), "ab"), 0);
  pipe.writing = FileDescriptor(-1);
  std::array<char, 8> block{};
  const auto some = ReadSome(pipe.reading.Number(), block.data(), block.size());
  ASSERT_TRUE(some);
  EXPECT_EQ(*some, 2U);
  const auto end = ReadSome(pipe.reading.Number(), block.data(), block.size());
  ASSERT_TRUE(end);
  EXPECT_EQ(*end, 0U);
  const auto failed = ReadSome(-1, block.data(), block.size());
  ASSERT_FALSE(failed);
  EXPECT_EQ(failed.error(), EBADF);
}

TEST(SurviveSizeLimit, AWriteBeyondTheLimitFailsAndTheProgramGoesOn) {
  const TemporaryFolder folder;
  EXPECT_EQ(InAnotherProcess([&] {
              SurviveSizeLimit();
              const rlimit limit{10, 10};
              if (setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
              const FileDescriptor file(open(folder.File("a").c_str(), O_WRONLY | O_CREAT, 0600));
              return WriteAll(file.Number(), "more than ten bytes") == EFBIG ? 0 : 1;
            }),
            0);
}

}  // namespace
}  // namespace kav::file_descriptor_test
