#include "statistics/statistics_keypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "statistics/regression.h"
#include "statistics/statistics_menus.h"

namespace kav::statistics_keypad_test {
namespace {

constexpr DataShape kShapes[] = {DataShape::OneVariable, DataShape::TwoVariables};

struct CaptionRow {
  StatisticsKey key;
  std::u16string_view caption;
};

constexpr CaptionRow kOneVariableCaptions[] = {
    {StatisticsKey::Add, u"Add"},
    {StatisticsKey::Ok, u"Ok"},
    {StatisticsKey::Cancel, u"Cancel"},
    {StatisticsKey::Edit, u"Edit"},
    {StatisticsKey::Delete, u"Delete"},
    {StatisticsKey::Clear, u"Clear"},
    {StatisticsKey::Save, u"Save"},
    {StatisticsKey::Load, u"Load"},
    {StatisticsKey::SumX, u"\u03A3X"},
    {StatisticsKey::SquaresX, u"\u03A3X^2"},
    {StatisticsKey::MeanX, u"Arithmetic Mean of X"},
    {StatisticsKey::SampleX, u"\u03C3(n-1) of X"},
    {StatisticsKey::PopulationX, u"\u03C3(n) of X"},
    {StatisticsKey::MemoryMenu, u"MEM"},
};

constexpr CaptionRow kTwoVariableCaptions[] = {
    {StatisticsKey::Add, u"Add"},
    {StatisticsKey::Ok, u"Ok"},
    {StatisticsKey::Cancel, u"Cancel"},
    {StatisticsKey::Edit, u"Edit"},
    {StatisticsKey::Delete, u"Delete"},
    {StatisticsKey::Clear, u"Clear"},
    {StatisticsKey::Save, u"Save"},
    {StatisticsKey::Load, u"Load"},
    {StatisticsKey::SumX, u"\u03A3X"},
    {StatisticsKey::SquaresX, u"\u03A3X^2"},
    {StatisticsKey::MeanX, u"Mean of X"},
    {StatisticsKey::SampleX, u"\u03C3(n-1) of X"},
    {StatisticsKey::PopulationX, u"\u03C3(n) of X"},
    {StatisticsKey::SumY, u"\u03A3Y"},
    {StatisticsKey::SquaresY, u"\u03A3Y^2"},
    {StatisticsKey::MeanY, u"Mean of Y"},
    {StatisticsKey::SampleY, u"\u03C3(n-1) of Y"},
    {StatisticsKey::PopulationY, u"\u03C3(n) of Y"},
    {StatisticsKey::Products, u"\u03A3XY"},
    {StatisticsKey::A, u"A"},
    {StatisticsKey::B, u"B"},
    {StatisticsKey::Correlation, u"r"},
    {StatisticsKey::C, u"C"},
    {StatisticsKey::Model, u"Lin"},
    {StatisticsKey::EstimateY, u"Y'"},
    {StatisticsKey::Plot, u"Plot"},
    {StatisticsKey::EstimateX, u"X'"},
    {StatisticsKey::EstimateX1, u"X1'"},
    {StatisticsKey::EstimateX2, u"X2'"},
    {StatisticsKey::MemoryMenu, u"MEM"},
};

template <std::size_t kCount>
void ExpectCaptions(DataShape shape, const CaptionRow (&expected)[kCount]) {
  const auto rows = StatisticsKeyRows(shape);
  ASSERT_EQ(rows.size(), kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    EXPECT_EQ(rows[i].key, expected[i].key) << Narrow(expected[i].caption);
    EXPECT_EQ(rows[i].caption, expected[i].caption);
  }
}

TEST(StatisticsKeypad, ButtonsOfOneVariableHaveTheirProperCaptions) {
  ExpectCaptions(DataShape::OneVariable, kOneVariableCaptions);
}

TEST(StatisticsKeypad, ButtonsOfTwoVariablesHaveTheirProperCaptions) {
  ExpectCaptions(DataShape::TwoVariables, kTwoVariableCaptions);
}

struct Area {
  int left;
  int top;
  int right;
  int bottom;

  bool operator==(const Area&) const = default;
};

Area AreaOf(const LinePlace& place) {
  return {place.x, place.y, place.x + place.width, place.y + place.height};
}

bool Overlap(const Area& a, const Area& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

const StatisticsKeyRow& RowOf(DataShape shape, StatisticsKey key) {
  const auto rows = StatisticsKeyRows(shape);
  return *std::find_if(rows.begin(), rows.end(),
                       [key](const StatisticsKeyRow& row) { return row.key == key; });
}

/// What is visible at the same time, with names for messages.
using Picture = std::vector<std::pair<std::string, Area>>;

Picture PictureOf(DataShape shape, const std::set<StatisticsKey>& hidden) {
  Picture picture;
  for (const StatisticsKeyRow& row : StatisticsKeyRows(shape)) {
    if (!hidden.contains(row.key)) picture.emplace_back(Narrow(row.caption), AreaOf(row.place));
  }
  const StatisticsPlaces& places = StatisticsPlacesOf(shape);
  picture.emplace_back("label of X", AreaOf(places.xLabel));
  picture.emplace_back("X", AreaOf(places.x));
  if (shape == DataShape::TwoVariables) {
    picture.emplace_back("label of Y", AreaOf(places.yLabel));
    picture.emplace_back("Y", AreaOf(places.y));
  }
  picture.emplace_back("label of Count", AreaOf(places.countLabel));
  picture.emplace_back("Count", AreaOf(places.count));
  picture.emplace_back("list", AreaOf(places.list));
  picture.emplace_back("result", AreaOf(places.result));
  if (hidden.contains(StatisticsKey::Cancel)) {
    picture.emplace_back("label of the total", AreaOf(places.totalLabel));
    picture.emplace_back("total", AreaOf(places.total));
  }
  return picture;
}

void ExpectApartOnTheScreen(const Picture& picture) {
  for (std::size_t i = 0; i < picture.size(); ++i) {
    const auto& [name, a] = picture[i];
    EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.right <= kScreenWidth && a.bottom <= kScreenHeight)
        << name;
    EXPECT_TRUE(a.left < a.right && a.top < a.bottom) << name;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(Overlap(a, picture[j].second)) << name << " and " << picture[j].first;
    }
  }
}

TEST(StatisticsKeypad, NothingThatIsVisibleOverlapsAndAllIsOnTheScreen) {
  using enum StatisticsKey;
  for (const DataShape shape : kShapes) {
    for (const std::set<StatisticsKey>& editing : {std::set{Ok, Cancel}, std::set{Add}}) {
      for (std::set<StatisticsKey> hidden :
           {std::set{C, EstimateX1, EstimateX2}, std::set{Correlation, EstimateX}}) {
        hidden.insert(editing.begin(), editing.end());
        ExpectApartOnTheScreen(PictureOf(shape, hidden));
      }
    }
  }
}

TEST(StatisticsKeypad, AlternativesShareTheirPlace) {
  for (const DataShape shape : kShapes) {
    EXPECT_EQ(AreaOf(RowOf(shape, StatisticsKey::Ok).place),
              AreaOf(RowOf(shape, StatisticsKey::Add).place));
    const StatisticsPlaces& places = StatisticsPlacesOf(shape);
    const Area label = AreaOf(places.totalLabel);
    const Area total = AreaOf(places.total);
    EXPECT_EQ(AreaOf(RowOf(shape, StatisticsKey::Cancel).place),
              (Area{label.left, label.top, total.right, total.bottom}));
    EXPECT_EQ(label.right, total.left);
  }
  const DataShape two = DataShape::TwoVariables;
  EXPECT_EQ(AreaOf(RowOf(two, StatisticsKey::C).place),
            AreaOf(RowOf(two, StatisticsKey::Correlation).place));
  EXPECT_EQ(AreaOf(RowOf(two, StatisticsKey::EstimateX1).place),
            AreaOf(RowOf(two, StatisticsKey::EstimateX).place));
}

/// The left and right edges of what stands in each row of buttons, by the top of the row.
std::map<int, std::set<std::pair<int, int>>> ButtonRows(DataShape shape) {
  std::map<int, std::set<std::pair<int, int>>> rows;
  for (const StatisticsKeyRow& row : StatisticsKeyRows(shape)) {
    const Area area = AreaOf(row.place);
    rows[area.top].insert({area.left, area.right});
  }
  return rows;
}

TEST(StatisticsKeypad, ResultsStandInColumnsThatReachFromSideToSide) {
  for (const DataShape shape : kShapes) {
    const auto rows = ButtonRows(shape);
    const auto& columns = rows.rbegin()->second;
    EXPECT_EQ(columns.begin()->first, 3);
    EXPECT_EQ(columns.rbegin()->second, kScreenWidth - 3);
    const int below = AreaOf(StatisticsPlacesOf(shape).result).bottom;
    std::size_t count = 0;
    for (const auto& [top, row] : rows) {
      if (top < below) continue;
      ++count;
      EXPECT_EQ(row, columns) << top;
    }
    EXPECT_EQ(count, shape == DataShape::OneVariable ? 2U : 4U);
  }
}

TEST(StatisticsKeypad, RowsFollowEachOtherEvenly) {
  for (const DataShape shape : kShapes) {
    const auto rows = ButtonRows(shape);
    const StatisticsPlaces& places = StatisticsPlacesOf(shape);
    EXPECT_EQ(places.countLabel.y, places.xLabel.y + kKeyHeight + 1);
    EXPECT_EQ(rows.begin()->first, places.count.y);
    int previous = places.result.y;
    for (const auto& [top, row] : rows) {
      if (top < places.result.y) continue;
      EXPECT_EQ(top, previous + kKeyHeight + 1);
      previous = top;
    }
    for (const StatisticsKeyRow& row : StatisticsKeyRows(shape)) {
      EXPECT_EQ(row.place.height, kKeyHeight) << Narrow(row.caption);
    }
  }
}

TEST(StatisticsKeypad, FieldsAlignWithTheButtonsBelow) {
  for (const DataShape shape : kShapes) {
    const StatisticsPlaces& places = StatisticsPlacesOf(shape);
    const LinePlace& remove = RowOf(shape, StatisticsKey::Delete).place;
    EXPECT_EQ(places.count.x, remove.x);
    EXPECT_EQ(places.count.width, remove.width);
    EXPECT_EQ(RowOf(shape, StatisticsKey::Add).place.x, RowOf(shape, StatisticsKey::Clear).place.x);
    EXPECT_EQ(places.totalLabel.x, RowOf(shape, StatisticsKey::Save).place.x);
    EXPECT_EQ(places.xLabel.y, places.x.y);
    EXPECT_EQ(places.countLabel.y, places.count.y);
    EXPECT_EQ(places.total.y, places.count.y);
  }
  const StatisticsPlaces& two = StatisticsPlacesOf(DataShape::TwoVariables);
  EXPECT_EQ(two.y.y, two.x.y);
  EXPECT_EQ(two.yLabel.y, two.x.y);
  EXPECT_EQ(two.y.width, two.x.width);
}

TEST(StatisticsKeypad, ListHasRoomForItsHeadingAndFourRows) {
  for (const DataShape shape : kShapes) {
    EXPECT_GE(StatisticsPlacesOf(shape).list.height, 5 * (kKeyHeight + 1));
  }
}

TEST(StatisticsKeypad, CaptionsHaveThreeUnitsForACharacter) {
  for (const DataShape shape : kShapes) {
    for (const StatisticsKeyRow& row : StatisticsKeyRows(shape)) {
      EXPECT_GE(row.place.width, 3 * static_cast<int>(row.caption.size())) << Narrow(row.caption);
    }
  }
  const int modelWidth = RowOf(DataShape::TwoVariables, StatisticsKey::Model).place.width;
  for (const MenuItem& item : BuildModelMenu()) {
    const auto caption = ModelCaption(*ModelOfItem(item.id));
    EXPECT_GE(modelWidth, 3 * static_cast<int>(caption.size())) << Narrow(caption);
  }
}

TEST(StatisticsKeypad, MomentsAreThoseOfTheVariableInTheCaption) {
  struct Row {
    StatisticsKey key;
    std::size_t variable;
    Moment moment;
  };
  const Row rows[] = {
      {StatisticsKey::SumX, 0, Moment::Sum},
      {StatisticsKey::SquaresX, 0, Moment::SumOfSquares},
      {StatisticsKey::MeanX, 0, Moment::Mean},
      {StatisticsKey::SampleX, 0, Moment::SampleDeviation},
      {StatisticsKey::PopulationX, 0, Moment::PopulationDeviation},
      {StatisticsKey::SumY, 1, Moment::Sum},
      {StatisticsKey::SquaresY, 1, Moment::SumOfSquares},
      {StatisticsKey::MeanY, 1, Moment::Mean},
      {StatisticsKey::SampleY, 1, Moment::SampleDeviation},
      {StatisticsKey::PopulationY, 1, Moment::PopulationDeviation},
  };
  for (const Row& row : rows) {
    const auto moment = MomentOf(row.key);
    ASSERT_TRUE(moment);
    EXPECT_EQ(moment->variable, row.variable);
    EXPECT_EQ(moment->moment, row.moment);
  }
  std::size_t count = 0;
  for (const StatisticsKeyRow& row : StatisticsKeyRows(DataShape::TwoVariables)) {
    if (MomentOf(row.key)) ++count;
  }
  EXPECT_EQ(count, std::size(rows));
}

}  // namespace
}  // namespace kav::statistics_keypad_test
