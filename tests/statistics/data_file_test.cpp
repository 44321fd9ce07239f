#include "statistics/data_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <limits>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "support/effort.h"
#include "support/locales.h"
#include "support/random.h"
#include "support/spelled_list.h"
#include "support/temporary_folder.h"

namespace kav::data_file_test {
namespace {

using test::Spelled;

constexpr uid_t kNobody = 65534;

/// Loads the file `path`: its rows and their total, or the message.
std::string Load(const std::string& path, DataShape shape = DataShape::OneVariable) {
  const auto loaded = LoadDataFile(path, shape, {});
  if (const auto* failed = std::get_if<WorkFailed>(&loaded)) return Narrow(failed->text);
  const auto& list = std::get<DataList>(loaded);
  EXPECT_EQ(list.Shape(), shape);
  return Spelled(list) + " " + std::to_string(list.Total());
}

std::string LoadText(const std::string& text, DataShape shape = DataShape::OneVariable) {
  const TemporaryFolder folder;
  PutFile(folder.File("a.txt"), text);
  return Load(folder.File("a.txt"), shape);
}

DataList ListOf(DataShape shape, const std::vector<DataRow>& rows) {
  DataList list(shape);
  for (const DataRow& row : rows) EXPECT_EQ(list.Append(row), std::nullopt);
  return list;
}

std::string Save(const std::string& path, const DataList& list) {
  const auto outcome = SaveDataFile(path, list, {});
  if (std::holds_alternative<DataSaved>(outcome)) return "";
  return Narrow(std::get<WorkFailed>(outcome).text);
}

TEST(LoadDataFile, TheRowsKeepTheirOrderAndTheirTexts) {
  EXPECT_EQ(LoadText("2\t3\r\n4.50\t1\r\n"), "2 3;4.50 1; 4");
  EXPECT_EQ(LoadText("1\t2\t3\r\n4\t5\t6\r\n", DataShape::TwoVariables), "1 2 3;4 5 6; 9");
  EXPECT_EQ(LoadText("1.5e+3\t2\r\n"), "1.5e+3 2; 2");
  EXPECT_EQ(LoadText("1.5E3\t2\r\n"), "1.5 3; 3");
  EXPECT_EQ(LoadText("5\t2.9\r\n"), "5 2; 2");
}

TEST(LoadDataFile, ALastRowWithoutItsCountIsGoneUnlessItIsTheOnlyOne) {
  EXPECT_EQ(LoadText("2\t3\r\n4\r\n"), "2 3; 3");
  EXPECT_EQ(LoadText("2\t3\r\n4\t1"), "2 3; 3");
  EXPECT_EQ(LoadText("4\r\n"), "4 ; 0");
  EXPECT_EQ(LoadText("4\t5\r\n", DataShape::TwoVariables), "4 5 ; 0");
  EXPECT_EQ(LoadText("4"), " 0");
  EXPECT_EQ(LoadText(""), " 0");
}

TEST(LoadDataFile, AFileOfManyBlocksIsReadWhole) {
  std::string text;
  std::string rows;
  std::int64_t total = 0;
  for (int i = 0; i < 40'000; ++i) {
    text += std::to_string(i) + ".25\t" + std::to_string(i % 7) + "\r\n";
    rows += std::to_string(i) + ".25 " + std::to_string(i % 7) + ";";
    total += i % 7;
  }
  EXPECT_EQ(LoadText(text), rows + " " + std::to_string(total));
}

TEST(LoadDataFile, WhatIsNoFileIsToldWithTheRemedy) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  mkfifo(folder.File("pipe").c_str(), 0600);
  PutFile(folder.File("file"), "1\t1\r\n");
  const std::string start = "The data cannot be loaded from ";
  const std::string noFile = ": a folder or a device has this name; choose a file.";
  EXPECT_EQ(Load(folder.File("folder")), start + folder.File("folder") + noFile);
  EXPECT_EQ(Load(folder.File("pipe")), start + folder.File("pipe") + noFile);
  EXPECT_EQ(Load("/dev/zero"), start + "/dev/zero" + noFile);
  EXPECT_EQ(Load(folder.File("none")),
            start + folder.File("none") + ": there is no such file; check its name.");
  EXPECT_EQ(Load(folder.File("file/x")),
            start + folder.File("file/x") + ": a folder on the way there is none; check the path.");
  EXPECT_EQ(Load(""), start + ": there is no such file; check its name.");
}

TEST(LoadDataFile, AFileOfSomebodyElseIsToldWithTheRemedy) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a");
  PutFile(path, "1\t1\r\n");
  chmod(path.c_str(), 0);
  const std::string expected = "The data cannot be loaded from " + path +
                               ": there is no permission; check who owns the file, and who may "
                               "read it.";
  EXPECT_EQ(InAnotherProcess([&] {
              if (geteuid() == 0 && seteuid(kNobody) != 0) return 2;
              return Load(path) == expected ? 0 : 1;
            }),
            0);
}

TEST(LoadDataFile, AFileThatBecomesShorterMeanwhileIsToldSo) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a");
  std::string text;
  for (int i = 0; i < 50'000; ++i) text += "1\t1\r\n";
  PutFile(path, text);
  const WorkProgress shrink = [&path](double) { return truncate(path.c_str(), 10) == 0; };
  const auto loaded = LoadDataFile(path, DataShape::OneVariable, shrink);
  ASSERT_TRUE(std::holds_alternative<WorkFailed>(loaded));
  EXPECT_EQ(Narrow(std::get<WorkFailed>(loaded).text),
            "The data cannot be loaded from " + path +
                ": the file became shorter while it was read; load it again when nothing writes to "
                "it.");
}

TEST(LoadDataFile, ATotalBeyond32BitsIsToldWithItsLine) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a");
  PutFile(path, "1\t2147483647\r\n\r\n2\t1\r\n3\t1\r\n");
  EXPECT_EQ(Load(path), "The data cannot be loaded from " + path +
                            ": in line 3 the total of the counts goes beyond -2147483648 to "
                            "2147483647; split the data into parts.");
  PutFile(path, "1\t-2147483648\r\n2\t-1\r\n");
  EXPECT_NE(Load(path).find("in line 2 the total"), std::string::npos);
  PutFile(path, "1\t2147483647\r\n2\t-1\r\n");
  EXPECT_EQ(Load(path), "1 2147483647;2 -1; 2147483646");
}

TEST(LoadDataFile, DigitsWithoutASeparatorAreToldWithTheirLine) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a");
  PutFile(path, "1\t1\r\n" + std::string(40'000'000, '7'));
  EXPECT_EQ(Load(path), "The data cannot be loaded from " + path +
                            ": in line 2 is a number of more than 30000 characters; check that the "
                            "file holds data.");
}

TEST(LoadDataFile, NulBytesTabsAndHugeCountsHaveTheirReading) {
  using namespace std::string_literals;
  EXPECT_EQ(LoadText("1\0005\0002\0006\000"s), "1 5;2 6; 11");
  EXPECT_EQ(LoadText(std::string(10'000'000, '\t') + "1\t5\n"), "1 5; 5");
  EXPECT_EQ(LoadText("7\t1e300\r\n8\t2\r\n"), "7 0;8 2; 2");
  // Only thirty digits are read. Doubles of this size are multiples of 2^44, and so 0 modulo 2^32.
  EXPECT_EQ(LoadText("7\t" + std::string(100'000, '1') + "\r\n8\t2\r\n"), "7 0;8 2; 2");
}

TEST(LoadDataFile, ItTellsHowMuchIsDoneAndCanBeGivenUp) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a");
  std::string text;
  for (int i = 0; i < test::Tries(1'000'000); ++i) text += "1234\t1\r\n";
  PutFile(path, text);
  std::vector<double> told;
  const auto loaded = LoadDataFile(path, DataShape::OneVariable, [&told](double done) {
    told.push_back(done);
    return true;
  });
  EXPECT_TRUE(std::holds_alternative<DataList>(loaded));
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), 0);
  EXPECT_LE(told.back(), 1);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  const auto givenUp = LoadDataFile(path, DataShape::OneVariable, [](double) { return false; });
  EXPECT_TRUE(std::holds_alternative<WorkCancelled>(givenUp));
}

TEST(LoadDataFile, NoLocaleChangesANumber) {
  for (const char* name : test::kLocales) {
    const test::LocaleInForce locale(name);
    EXPECT_EQ(LoadText("1.5\t2.9\r\n"), "1.5 2; 2") << name;
  }
}

TEST(SaveDataFile, ARowIsALineWithTabsAndCrLf) {
  const TemporaryFolder folder;
  const std::string path = folder.File("ü.txt");
  PutFile(path, "old");
  EXPECT_EQ(Save(path, ListOf(DataShape::OneVariable, {{{"2.5", {}}, 3}, {{"-1e-5", {}}, -1}})),
            "");
  EXPECT_EQ(FileContent(path), "2.5\t3\r\n-1e-5\t-1\r\n");
  EXPECT_EQ(Save(path, ListOf(DataShape::TwoVariables, {{{"1", "2"}, 3}, {{"4", ""}, {}}})), "");
  EXPECT_EQ(FileContent(path), "1\t2\t3\r\n4\t\t\r\n");
  EXPECT_EQ(Save(path, DataList(DataShape::OneVariable)), "");
  EXPECT_EQ(FileContent(path), "");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"ü.txt"});
}

TEST(SaveDataFile, TheBytesOfValuesStayAsTheyAre) {
  using namespace std::string_literals;
  const TemporaryFolder folder;
  const std::string value = "1\0\xff\x80"s;
  EXPECT_EQ(Save(folder.File("a"), ListOf(DataShape::OneVariable, {{{value, {}}, 1}})), "");
  EXPECT_EQ(FileContent(folder.File("a")), value + "\t1\r\n");
}

TEST(SaveDataFile, ALinkStaysOne) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  ASSERT_EQ(symlink("a", folder.File("link").c_str()), 0);
  EXPECT_EQ(Save(folder.File("link"), ListOf(DataShape::OneVariable, {{{"1", {}}, 2}})), "");
  EXPECT_EQ(FileContent(folder.File("a")), "1\t2\r\n");
  EXPECT_TRUE(S_ISLNK(StatusOf(folder.File("link")).st_mode));
}

TEST(SaveDataFile, WhatIsNoFileIsNotReplaced) {
  const TemporaryFolder folder;
  mkdir(folder.File("folder").c_str(), 0700);
  mkfifo(folder.File("pipe").c_str(), 0600);
  const DataList list = ListOf(DataShape::OneVariable, {{{"1", {}}, 2}});
  const std::string reason =
      ": a folder or a device has this name; move it away or choose another file.";
  for (const char* name : {"folder", "pipe"}) {
    EXPECT_EQ(Save(folder.File(name), list),
              "The data cannot be saved in " + folder.File(name) + reason);
  }
  EXPECT_TRUE(S_ISFIFO(StatusOf(folder.File("pipe")).st_mode));
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"folder", "pipe"}));
}

TEST(SaveDataFile, AFailureIsToldAndLeavesTheFile) {
  const TemporaryFolder folder;
  const DataList list = ListOf(DataShape::OneVariable, {{{"1", {}}, 2}});
  EXPECT_EQ(Save(folder.File("none/a"), list),
            "The data cannot be saved in " + folder.File("none/a") +
                ": a folder on the way there is missing and cannot be made; check the path.");
  PutFile(folder.File("a"), "old");
  const int result = InAnotherProcess([&] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{0, 0};
    setrlimit(RLIMIT_FSIZE, &limit);
    return Save(folder.File("a"), list) ==
                   "The data cannot be saved in " + folder.File("a") +
                       ": no file may grow so large here; raise the limit (ulimit -f) or choose "
                       "another place."
               ? 0
               : 1;
  });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(FileContent(folder.File("a")), "old");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"a"});
}

TEST(SaveDataFile, GivenUpItLeavesTheFile) {
  const TemporaryFolder folder;
  PutFile(folder.File("a"), "old");
  const DataList list = ListOf(DataShape::OneVariable, {{{"1", {}}, 2}});
  const auto outcome = SaveDataFile(folder.File("a"), list, [](double) { return false; });
  EXPECT_TRUE(std::holds_alternative<WorkCancelled>(outcome));
  EXPECT_EQ(FileContent(folder.File("a")), "old");
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"a"});
}

TEST(SaveDataFile, WhatWasLoadedIsSavedAsItWasAndLoadedAgain) {
  static constexpr std::string_view kCharacters = "0123456789.e+-\t\n\r ";
  const TemporaryFolder folder;
  test::Random random(6);
  for (int i = 0; i < test::Tries(300); ++i) {
    std::string text = "1\t1\t1\t1\t1\t1\n";  // whole rows of either shape
    for (std::size_t n = random.Below(300); n > 0; --n) text += random.Of(kCharacters);
    const auto shape = random.Below(2) == 0 ? DataShape::OneVariable : DataShape::TwoVariables;
    PutFile(folder.File("a"), text);
    const auto loaded = LoadDataFile(folder.File("a"), shape, {});
    if (!std::holds_alternative<DataList>(loaded)) continue;  // the total is out of range
    ASSERT_EQ(Save(folder.File("b"), std::get<DataList>(loaded)), "");
    ASSERT_EQ(Load(folder.File("b"), shape), Load(folder.File("a"), shape)) << text;
  }
}

}  // namespace
}  // namespace kav::data_file_test
