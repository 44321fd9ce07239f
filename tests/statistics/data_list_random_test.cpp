// Random changes of a list of data, compared with those of a plain vector.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "statistics/data_list.h"
#include "support/effort.h"
#include "support/random.h"
#include "support/spelled_list.h"

namespace kav::data_list_random_test {
namespace {

using test::Spelled;

/// A row of the plain vector that the list is compared with.
struct PlainRow {
  std::string x;
  std::string y;
  std::optional<std::int32_t> count;
};

std::string Spelled(const std::vector<PlainRow>& rows) {
  std::string text;
  for (const PlainRow& row : rows) {
    text += row.x + ' ' + row.y + ' ' + (row.count ? std::to_string(*row.count) : "") + ';';
  }
  return text;
}

/// Makes the same random changes to a list and to a vector.
class TwoLists {
 public:
  explicit TwoLists(std::uint64_t seed) : random_(seed) {}

  void Change() {
    const PlainRow made{
        Text(), Text(),
        random_.Below(9) == 0 ? std::nullopt : std::optional<std::int32_t>(random_.Below(100))};
    const DataRow row{{made.x, made.y}, made.count};
    const std::size_t at = plain_.empty() ? 0 : random_.Below(plain_.size());
    const auto place = plain_.begin() + static_cast<std::ptrdiff_t>(at);
    switch (random_.Below(plain_.empty() ? 2 : 5)) {
      case 0:
        EXPECT_EQ(list_.InsertTop(row), std::nullopt);
        plain_.insert(plain_.begin(), made);
        break;
      case 1:
        EXPECT_EQ(list_.Append(row), std::nullopt);
        plain_.push_back(made);
        break;
      case 2:
        EXPECT_EQ(list_.Erase(at), std::nullopt);
        plain_.erase(place);
        break;
      default:
        EXPECT_EQ(list_.Rewrite(at, row), std::nullopt);
        *place = made;
    }
  }

  void Compare() const {
    std::int64_t total = 0;
    std::size_t complete = 0;
    for (const PlainRow& row : plain_) {
      total += row.count.value_or(0);
      complete += row.count ? 1U : 0U;
    }
    ASSERT_EQ(Spelled(list_), Spelled(plain_));
    ASSERT_EQ(list_.Total(), total);
    ASSERT_EQ(list_.CompleteRowCount(), complete);
  }

 private:
  /// Long enough for the texts to be compacted again and again.
  std::string Text() {
    return std::string(random_.Below(8) * random_.Below(400),
                       static_cast<char>('0' + random_.Below(10)));
  }

  test::Random random_;
  DataList list_{DataShape::TwoVariables};
  std::vector<PlainRow> plain_;
};

TEST(DataListRandom, ChangesAtRandomLeaveWhatTheyLeaveInAVector) {
  for (std::uint64_t seed = 0; seed < 4; ++seed) {
    TwoLists lists(seed);
    for (int i = 0; i < test::Tries(5000); ++i) {
      lists.Change();
      if (i % 50 == 0) lists.Compare();
    }
    lists.Compare();
  }
}

}  // namespace
}  // namespace kav::data_list_random_test
