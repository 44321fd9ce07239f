// A grid whose memory runs out.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <new>
#include <string>

#include "grid/grid_model.h"
#include "grid/plain_grid.h"
#include "support/effort.h"
#include "support/random.h"

namespace kav::grid_memory_test {
namespace {

using test::Fill;
using test::LongText;
using test::PlainGrid;
using test::PlainOf;
using test::Random;
using test::Shape;
using test::Tries;

/// Counts the bytes that are in use, and can run out.
class LimitedMemory final : public std::pmr::memory_resource {
 public:
  /// From here on, `count` allocations succeed and all others fail.
  void AllowOnly(int count) { allowed_ = count; }
  void AllowAll() { allowed_ = INT_MAX; }
  std::size_t Held() const { return held_; }

 private:
  void* do_allocate(std::size_t bytes, std::size_t alignment) override {
    if (allowed_ == 0) throw std::bad_alloc();
    if (allowed_ != INT_MAX) --allowed_;
    held_ += bytes;
    return std::pmr::new_delete_resource()->allocate(bytes, alignment);
  }
  void do_deallocate(void* place, std::size_t bytes, std::size_t alignment) override {
    held_ -= bytes;
    std::pmr::new_delete_resource()->deallocate(place, bytes, alignment);
  }
  bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }

  int allowed_ = INT_MAX;
  std::size_t held_ = 0;
};

/// Something that may ask for memory.
struct Change {
  const char* name;
  bool needsMemory;
  bool (*make)(GridModel& model);
};
constexpr Change kChanges[]{
    {"more rows", true, [](GridModel& model) { return model.SetRowCount(9); }},
    {"fewer rows", true, [](GridModel& model) { return model.SetRowCount(2); }},
    {"more columns", true, [](GridModel& model) { return model.SetColumnCount(9); }},
    {"fewer columns", true, [](GridModel& model) { return model.SetColumnCount(3); }},
    {"fixed rows", false, [](GridModel& model) { return model.SetFixedRowCount(3); }},
    {"fixed columns", false, [](GridModel& model) { return model.SetFixedColumnCount(4); }},
    {"long text", true,
     [](GridModel& model) {
       const std::u16string text(500, u'7');
       return model.SetItem({2, 3, GridItem::kText | GridItem::kFormat, text, {}});
     }},
    {"format", false,
     [](GridModel& model) {
       return model.SetItem({2, 3, GridItem::kFormat, {}, {GridAlignment::Centre, true}});
     }},
};

void MakeFilledGrid(GridModel& model) {
  Shape(model, 4, 5, 1, 2);
  Fill(model);
}

TEST(GridMemory, ChangeThatFindsNoneFailsAndLeavesAllAsItWas) {
  for (const Change& change : kChanges) {
    SCOPED_TRACE(change.name);
    LimitedMemory memory;
    {
      GridModel model(&memory);
      MakeFilledGrid(model);
      const PlainGrid before = PlainOf(model);
      const std::size_t held = memory.Held();
      int allowed = 0;
      for (memory.AllowOnly(0); !change.make(model); memory.AllowOnly(++allowed)) {
        ASSERT_LT(allowed, 100);
        EXPECT_EQ(PlainOf(model), before) << allowed;
        EXPECT_EQ(memory.Held(), held) << allowed;
      }
      EXPECT_EQ(allowed > 0, change.needsMemory);

      // The failures before have left no trace.
      GridModel untroubled;
      MakeFilledGrid(untroubled);
      ASSERT_TRUE(change.make(untroubled));
      EXPECT_EQ(PlainOf(model), PlainOf(untroubled));
      EXPECT_NE(PlainOf(model), before);
    }
    EXPECT_EQ(memory.Held(), 0U);
  }
}

TEST(GridMemory, FirstShapeThatFindsNoneLeavesNothing) {
  LimitedMemory memory;
  memory.AllowOnly(0);
  GridModel model(&memory);
  EXPECT_FALSE(model.SetRowCount(3));
  EXPECT_FALSE(model.SetColumnCount(3));
  EXPECT_EQ(PlainOf(model), PlainGrid());
  memory.AllowAll();
  EXPECT_TRUE(model.SetRowCount(3));
  EXPECT_TRUE(model.SetColumnCount(3));
}

TEST(GridMemory, AllOfItComesFromWhereTheGridWasTold) {
  std::pmr::memory_resource* usual =
      std::pmr::set_default_resource(std::pmr::null_memory_resource());
  LimitedMemory memory;
  {
    GridModel model(&memory);
    Shape(model, 3, 3, 1, 1);
    Fill(model);
    Shape(model, 5, 6, 1, 1);
    EXPECT_EQ(model.GetItemText(0, 2), LongText(0, 2));
    EXPECT_GT(memory.Held(), 0U);
  }
  std::pmr::set_default_resource(usual);
  EXPECT_EQ(memory.Held(), 0U);
}

/// A call with all that any call takes.
struct Step {
  std::size_t call;
  int number;
  int width;
  GridItem item;
};

/// Whether `grid`, a model or a plain one, could do it.
template <class AnyGrid>
bool Take(const Step& step, AnyGrid& grid) {
  switch (step.call) {
    case 0:
      return grid.SetRowCount(step.number);
    case 1:
      return grid.SetColumnCount(step.number);
    case 2:
      return grid.SetFixedRowCount(step.number);
    case 3:
      return grid.SetFixedColumnCount(step.number);
    case 4:
      return grid.SetColumnWidth(step.number, step.width);
    default:
      return grid.SetItem(step.item);
  }
}

/// Mostly in or just beside a small grid. What is large is no count that it could take.
int AnyPlace(Random& random) {
  constexpr std::array kFar{INT_MIN, -1000, 1001, 100000, INT_MAX};
  return random.Below(30) == 0 ? random.Of(kFar) : static_cast<int>(random.Below(12)) - 2;
}

Step AnyStep(Random& random, std::u16string& text) {
  constexpr std::array kAlignments{GridAlignment::Left, GridAlignment::Centre,
                                   GridAlignment::Right};
  text.assign(random.Below(30), static_cast<char16_t>(u'a' + random.Below(26)));
  Step step{random.Below(15), AnyPlace(random), static_cast<int>(random.Below(20000)) - 5000, {}};
  step.item.row = AnyPlace(random);
  step.item.column = AnyPlace(random);
  step.item.mask = static_cast<unsigned>(random.Below(4));
  step.item.text = text;
  step.item.format = {random.Of(kAlignments), random.Below(2) == 0};
  return step;
}

TEST(GridRandom, EveryStepIsDoneWhollyOrNotAtAll) {
  LimitedMemory memory;
  int failures = 0;
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Random random(seed);
    GridModel model(&memory);
    PlainGrid plain;
    for (int i = 0; i < Tries(2000); ++i) {
      std::u16string text;
      const Step step = AnyStep(random, text);
      PlainGrid after = plain;
      const bool canBe = Take(step, after);
      if (random.Below(4) == 0) memory.AllowOnly(static_cast<int>(random.Below(6)));
      const bool isDone = Take(step, model);
      memory.AllowAll();
      ASSERT_TRUE(canBe || !isDone) << seed << ' ' << i;
      if (canBe && !isDone) ++failures;
      if (isDone) plain = after;
      ASSERT_EQ(PlainOf(model), plain) << seed << ' ' << i;
      ASSERT_EQ(model.Nearest({step.item.row, step.item.column}),
                plain.Nearest({step.item.row, step.item.column}))
          << seed << ' ' << i;
    }
  }
  EXPECT_GT(failures, 0);
  EXPECT_EQ(memory.Held(), 0U);
}

}  // namespace
}  // namespace kav::grid_memory_test
