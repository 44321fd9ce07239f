// The memory that a list takes, and what it does if there is none.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <memory>
#include <new>
#include <string>

#include "common/number_text.h"
#include "settings/settings_store.h"
#include "statistics/data_file.h"
#include "statistics/data_list.h"
#include "statistics/pasted_rows.h"
#include "statistics/row_undo.h"
#include "statistics/statistics_keypad.h"
#include "statistics/statistics_model.h"
#include "support/counted_memory.h"
#include "support/effort.h"
#include "support/temporary_folder.h"

namespace kav::data_list_memory_test {
namespace {

using test::mostTaken;
using test::Shortage;
using test::taken;

DataList ListOf(std::int64_t rows) {
  DataList list(DataShape::OneVariable);
  for (std::int64_t i = 0; i < rows; ++i) {
    EXPECT_EQ(list.Append({{PrintInteger(i), {}}, 1}), std::nullopt);
  }
  return list;
}

/// Appends rows until memory is used up. Answers the number of rows then.
std::size_t Fill(DataList& list, std::string_view value) {
  while (true) {
    const auto refusal = list.Append({{value, {}}, 1});
    if (!refusal) continue;
    EXPECT_EQ(refusal, DataRefusal::NoMemory);
    return list.RowCount();
  }
}

/// What this program takes of the machine's memory, in bytes: what was freed and kept is in it.
std::int64_t Resident() {
  std::ifstream file("/proc/self/smaps_rollup");
  std::string line;
  while (std::getline(file, line)) {
    if (line.starts_with("Anonymous:")) return std::stoll(line.substr(line.find(' '))) * 1024;
  }
  ADD_FAILURE() << "nobody tells";
  return 0;
}

TEST(DataListMemory, ALongListIsGivenBackToTheMachine) {
  if (!test::IsFast()) GTEST_SKIP() << "a sanitizer keeps what is freed";
  std::string text;
  // Hardly a file has shorter lines.
  for (int i = 0; i < 300'000; ++i) text += std::to_string(i % 90 + 10) + "\t5\r\n";
  const TemporaryFolder folder;
  PutFile(folder.File("data.txt"), text);
  MemorySettingsStore store;
  for (const bool isLeft : {false, true}) {
    auto model = std::make_unique<StatisticsModel>(DataShape::OneVariable, store);
    const auto change = [&model] {
      model->SetFields({u"1", u"", u"1"});
      for (std::size_t i = 0; i < RowUndo::kMostSteps; ++i) model->Press(StatisticsKey::Add);
    };
    change();
    const std::int64_t before = Resident();
    ASSERT_EQ(model->LoadFrom(folder.File("data.txt"), {}), std::nullopt);
    // What else is taken meanwhile stands in the way of what is freed below it.
    const auto above = std::make_unique<std::array<char, 4096>>();
    const auto size = static_cast<std::int64_t>(text.size());
    EXPECT_GE(Resident() - before, size) << "or nothing is measured";
    EXPECT_LE(Resident() - before, 2 * size);
    if (isLeft) {
      model.reset();
    } else {
      model->ClearRows();
      EXPECT_LE(Resident() - before, 2 * size) << "what can be undone is not copied";
      change();
    }
    EXPECT_LE(Resident() - before, size / 8);
  }
}

TEST(DataListMemory, LoadingTakesAtMostTwiceTheFile) {
  const int kRows = test::Tries(1'000'000);
  std::string text;
  for (int i = 0; i < kRows; ++i) text += std::to_string(i % 9000 + 1000) + ".123\t5\r\n";
  ASSERT_EQ(text.size(), kRows * 12U);
  const TemporaryFolder folder;
  PutFile(folder.File("data.txt"), text);
  const std::size_t before = mostTaken = taken;
  const auto loaded = LoadDataFile(folder.File("data.txt"), DataShape::OneVariable, {});
  ASSERT_TRUE(std::holds_alternative<DataList>(loaded));
  EXPECT_EQ(std::get<DataList>(loaded).RowCount(), static_cast<std::size_t>(kRows));
  EXPECT_LE(mostTaken - before, 2 * text.size());
}

TEST(DataListMemory, ChangesWithoutEndTakeNoMoreThanTwiceTheTexts) {
  const std::string value(20'000, '1');
  DataList list(DataShape::OneVariable);
  for (int i = 0; i < 50; ++i) ASSERT_EQ(list.Append({{value, {}}, 1}), std::nullopt);
  const std::size_t before = mostTaken = taken;
  for (std::size_t i = 0; i < 2000; ++i) {
    ASSERT_EQ(list.Rewrite(i % 50, {{value, {}}, 1}), std::nullopt);
  }
  // The old texts and the new ones while they are compacted, and blocks that are not full.
  EXPECT_LE(mostTaken - before, 3 * 50 * value.size());
}

TEST(DataListMemory, AnErasedListGivesItsMemoryBack) {
  const std::size_t before = taken;
  DataList list = ListOf(100'000);
  while (list.RowCount() > 0) ASSERT_EQ(list.Erase(list.RowCount() - 1), std::nullopt);
  EXPECT_LE(taken - before, 600'000U);
  list = DataList(list.Shape());
  EXPECT_LE(taken - before, 2'000U);
}

TEST(DataListMemory, ARowWithoutMemoryIsRefusedAndTheListStays) {
  DataList list(DataShape::OneVariable);
  const Shortage shortage(2'000'000);
  const std::size_t rows = Fill(list, "12345");
  ASSERT_GT(rows, 50'000U);
  EXPECT_EQ(list.Total(), static_cast<std::int32_t>(rows));
  EXPECT_EQ(list.CompleteRowCount(), rows);
  EXPECT_EQ(list.ValueText(0, 0), "12345");
  EXPECT_EQ(list.ValueText(rows - 1, 0), "12345");
}

TEST(DataListMemory, ARewriteWithoutMemoryLeavesTheRow) {
  const std::string longText(30'000, '7');
  DataList list(DataShape::OneVariable);
  ASSERT_EQ(list.Append({{"5", {}}, 3}), std::nullopt);
  const Shortage shortage(0);
  std::optional<DataRefusal> refusal;
  // The rest of the first block has room for a few of them.
  for (int i = 0; i < 20 && !refusal; ++i) {
    refusal = list.Rewrite(0, {{longText, {}}, 4});
    if (!refusal) refusal = list.Rewrite(0, {{"6", {}}, 5});
  }
  EXPECT_EQ(refusal, DataRefusal::NoMemory);
  EXPECT_EQ(list.ValueText(0, 0), "6");
  EXPECT_EQ(list.CountText(0), "5");
  EXPECT_EQ(list.Total(), 5);
}

TEST(DataListMemory, RowsWithoutMemoryAreAllRefused) {
  const DataList rows = ListOf(200'000);
  for (const std::size_t more : {0U, 1'000U, 300'000U, 2'500'000U, 3'000'000U}) {
    DataList list = ListOf(3);
    const Shortage shortage(more);
    ASSERT_EQ(list.InsertTop(rows), DataRefusal::NoMemory) << more;
    ASSERT_EQ(list.RowCount(), 3U);
    ASSERT_EQ(list.Total(), 3);
    ASSERT_EQ(list.ValueText(2, 0), "2");
  }
}

TEST(DataListMemory, SortingGoesWithoutMemory) {
  DataList list = ListOf(2'000);
  const Shortage shortage(100);
  list.Sort(0, DataList::Direction::Descending);
  for (std::size_t row = 0; row < 2'000; ++row) {
    ASSERT_EQ(list.Value(row, 0), 1999 - static_cast<double>(row));
  }
}

TEST(DataListMemory, AFileTooLargeForTheMemoryIsToldAsSuch) {
  std::string text;
  for (int i = 0; i < 300'000; ++i) text += "1234\t1\r\n";
  const TemporaryFolder folder;
  const std::string path = folder.File("data.txt");
  PutFile(path, text);
  text = {};
  const Shortage shortage(2'000'000);
  const auto loaded = LoadDataFile(path, DataShape::OneVariable, {});
  ASSERT_TRUE(std::holds_alternative<WorkFailed>(loaded));
  EXPECT_TRUE(std::get<WorkFailed>(loaded).text.ends_with(
      u": there is not enough memory for its rows; close other programs or split the data into "
      u"parts."));
}

TEST(DataListMemory, SavingWithoutMemoryLeavesTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.File("data.txt");
  PutFile(path, "old");
  const DataList list = ListOf(50'000);
  std::variant<DataSaved, WorkFailed, WorkCancelled> outcome;
  {
    const Shortage shortage(100'000);
    outcome = SaveDataFile(path, list, {});
  }
  ASSERT_TRUE(std::holds_alternative<WorkFailed>(outcome));
  EXPECT_TRUE(std::get<WorkFailed>(outcome).text.ends_with(
      u": there is not enough memory; close other programs."));
  EXPECT_EQ(FileContent(path), "old");
}

TEST(DataListMemory, APasteTooLargeForTheMemoryIsRefused) {
  std::u16string text;
  for (int i = 0; i < 200'000; ++i) text += u"1234\t1\n";
  const Shortage shortage(1'000'000);
  const auto pasted = ReadPastedRows(text, DataShape::OneVariable, {}, {});
  ASSERT_TRUE(std::holds_alternative<WorkFailed>(pasted));
  EXPECT_EQ(std::get<WorkFailed>(pasted).text,
            u"The rows cannot be pasted: there is not enough memory for its rows; close other "
            u"programs or split the data into parts.");
}

}  // namespace
}  // namespace kav::data_list_memory_test
