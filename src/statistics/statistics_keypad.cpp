#include "statistics/statistics_keypad.h"

#include <algorithm>
#include <array>

#include "statistics/statistics_texts.h"

namespace kav {
namespace {

// clang-format off
constexpr std::array kListKeys{
    StatisticsKeyRow{StatisticsKey::Add,    KeyAt( 55, 14, 26), KeyColour::Editing, u"Add", u"add the row to the list"},
    StatisticsKeyRow{StatisticsKey::Ok,     KeyAt( 55, 14, 26), KeyColour::Editing, u"Ok", u"take the changes of the row over"},
    StatisticsKeyRow{StatisticsKey::Cancel, KeyAt( 82, 14, 51), KeyColour::Editing, u"Cancel", u"leave the row as it was"},

    StatisticsKeyRow{StatisticsKey::Edit,   KeyAt(  3, 25, 25), KeyColour::Editing, u"Edit", u"change the selected row"},
    StatisticsKeyRow{StatisticsKey::Delete, KeyAt( 29, 25, 25), KeyColour::Editing, u"Delete", u"delete the selected row"},
    StatisticsKeyRow{StatisticsKey::Clear,  KeyAt( 55, 25, 26), KeyColour::Editing, u"Clear", u"delete all rows", "Alt+C"},
    StatisticsKeyRow{StatisticsKey::Save,   KeyAt( 82, 25, 25), KeyColour::Mode,    u"Save", u"write the rows into a file", "Ctrl+S"},
    StatisticsKeyRow{StatisticsKey::Load,   KeyAt(108, 25, 25), KeyColour::Mode,    u"Load", u"read the rows of a file", "Ctrl+O"},
};

constexpr std::array kOneVariableKeys{
    StatisticsKeyRow{StatisticsKey::SumX,        KeyAt(  3, 131, 35), KeyColour::Function,
                     u"ΣX", u"sum of X"},
    StatisticsKeyRow{StatisticsKey::SquaresX,    KeyAt( 39, 131, 29), KeyColour::Function,
                     u"ΣX^2", u"sum of squares of X"},
    StatisticsKeyRow{StatisticsKey::MeanX,       KeyAt( 69, 131, 64), KeyColour::Function,
                     u"Arithmetic Mean of X", u"arithmetic mean: the sum of X divided by the total"},

    StatisticsKeyRow{StatisticsKey::SampleX,     KeyAt(  3, 142, 35), KeyColour::Function,
                     u"σ(n-1) of X", u"sample standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::PopulationX, KeyAt( 39, 142, 29), KeyColour::Function,
                     u"σ(n) of X", u"population standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::MemoryMenu,  KeyAt( 69, 142, 64), KeyColour::Orange,
                     u"MEM", u"store the result in a memory variable, or recall one", "Alt+V"},
};

// The columns are as wide as the captions of their first two rows need them.
constexpr std::array kTwoVariableKeys{
    StatisticsKeyRow{StatisticsKey::SumX,        KeyAt(  3, 109, 17), KeyColour::Function,
                     u"ΣX", u"sum of X"},
    StatisticsKeyRow{StatisticsKey::SquaresX,    KeyAt( 21, 109, 18), KeyColour::Function,
                     u"ΣX^2", u"sum of squares of X"},
    StatisticsKeyRow{StatisticsKey::MeanX,       KeyAt( 40, 109, 31), KeyColour::Function,
                     u"Mean of X", u"mean: the sum of X divided by the total"},
    StatisticsKeyRow{StatisticsKey::SampleX,     KeyAt( 72, 109, 33), KeyColour::Function,
                     u"σ(n-1) of X", u"sample standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::PopulationX, KeyAt(106, 109, 27), KeyColour::Function,
                     u"σ(n) of X", u"population standard deviation of X"},

    StatisticsKeyRow{StatisticsKey::SumY,        KeyAt(  3, 120, 17), KeyColour::Function,
                     u"ΣY", u"sum of Y"},
    StatisticsKeyRow{StatisticsKey::SquaresY,    KeyAt( 21, 120, 18), KeyColour::Function,
                     u"ΣY^2", u"sum of squares of Y"},
    StatisticsKeyRow{StatisticsKey::MeanY,       KeyAt( 40, 120, 31), KeyColour::Function,
                     u"Mean of Y", u"mean: the sum of Y divided by the total"},
    StatisticsKeyRow{StatisticsKey::SampleY,     KeyAt( 72, 120, 33), KeyColour::Function,
                     u"σ(n-1) of Y", u"sample standard deviation of Y"},
    StatisticsKeyRow{StatisticsKey::PopulationY, KeyAt(106, 120, 27), KeyColour::Function,
                     u"σ(n) of Y", u"population standard deviation of Y"},

    StatisticsKeyRow{StatisticsKey::Products,    KeyAt(  3, 131, 17), KeyColour::Function,
                     u"ΣXY", u"sum of products of X and Y"},
    StatisticsKeyRow{StatisticsKey::A,           KeyAt( 21, 131, 18), KeyColour::Digit,
                     u"A", u"coefficient A"},
    StatisticsKeyRow{StatisticsKey::B,           KeyAt( 40, 131, 31), KeyColour::Digit,
                     u"B", u"coefficient B"},
    StatisticsKeyRow{StatisticsKey::Correlation, KeyAt( 72, 131, 33), KeyColour::Digit,
                     u"r", u"correlation coefficient"},
    StatisticsKeyRow{StatisticsKey::C,           KeyAt( 72, 131, 33), KeyColour::Digit,
                     u"C", u"coefficient C"},
    StatisticsKeyRow{StatisticsKey::Model,       KeyAt(106, 131, 27), KeyColour::Orange,
                     kLinearCaption, u"choose the regression model", "Alt+R"},

    StatisticsKeyRow{StatisticsKey::EstimateY,   KeyAt(  3, 142, 17), KeyColour::Digit,
                     u"Y'", u"estimate of Y for the X typed above"},
    StatisticsKeyRow{StatisticsKey::Plot,        KeyAt( 21, 142, 18), KeyColour::Equals,
                     u"Plot", u"draw the data and the fitted curve", "Alt+P"},
    StatisticsKeyRow{StatisticsKey::EstimateX,   KeyAt( 40, 142, 31), KeyColour::Digit,
                     u"X'", u"estimate of X for the Y typed above"},
    StatisticsKeyRow{StatisticsKey::EstimateX1,  KeyAt( 40, 142, 31), KeyColour::Digit,
                     u"X1'", u"first estimate of X for the Y typed above"},
    StatisticsKeyRow{StatisticsKey::EstimateX2,  KeyAt( 72, 142, 33), KeyColour::Digit,
                     u"X2'", u"second estimate of X for the Y typed above"},
    StatisticsKeyRow{StatisticsKey::MemoryMenu,  KeyAt(106, 142, 27), KeyColour::Orange,
                     u"MEM", u"store the result in a memory variable, or recall one", "Alt+V"},
};
// clang-format on

template <std::size_t kHead, std::size_t kTail>
constexpr auto Joined(const std::array<StatisticsKeyRow, kHead>& head,
                      const std::array<StatisticsKeyRow, kTail>& tail) {
  std::array<StatisticsKeyRow, kHead + kTail> rows{};
  std::copy(tail.begin(), tail.end(), std::copy(head.begin(), head.end(), rows.begin()));
  return rows;
}

constexpr auto kOneVariableRows = Joined(kListKeys, kOneVariableKeys);
constexpr auto kTwoVariableRows = Joined(kListKeys, kTwoVariableKeys);

constexpr StatisticsPlaces kOneVariablePlaces{
    .xLabel = KeyAt(3, 3, 25),
    .x = KeyAt(29, 3, 104),
    .yLabel = {},
    .y = {},
    .countLabel = KeyAt(3, 14, 25),
    .count = KeyAt(29, 14, 25),
    .totalLabel = KeyAt(82, 14, 22),
    .total = KeyAt(104, 14, 29),
    .list = {3, 36, 130, 83},
    .result = KeyAt(3, 120, 130),
};

constexpr StatisticsPlaces kTwoVariablePlaces{
    .xLabel = KeyAt(3, 3, 10),
    .x = KeyAt(14, 3, 53),
    .yLabel = KeyAt(69, 3, 10),
    .y = KeyAt(80, 3, 53),
    .countLabel = KeyAt(3, 14, 25),
    .count = KeyAt(29, 14, 25),
    .totalLabel = KeyAt(82, 14, 22),
    .total = KeyAt(104, 14, 29),
    .list = {3, 36, 130, 61},
    .result = KeyAt(3, 98, 130),
};

struct MomentRow {
  StatisticsKey key;
  KeyMoment moment;
};

constexpr std::array kMoments{
    MomentRow{StatisticsKey::SumX, {0, Moment::Sum}},
    MomentRow{StatisticsKey::SquaresX, {0, Moment::SumOfSquares}},
    MomentRow{StatisticsKey::MeanX, {0, Moment::Mean}},
    MomentRow{StatisticsKey::SampleX, {0, Moment::SampleDeviation}},
    MomentRow{StatisticsKey::PopulationX, {0, Moment::PopulationDeviation}},
    MomentRow{StatisticsKey::SumY, {1, Moment::Sum}},
    MomentRow{StatisticsKey::SquaresY, {1, Moment::SumOfSquares}},
    MomentRow{StatisticsKey::MeanY, {1, Moment::Mean}},
    MomentRow{StatisticsKey::SampleY, {1, Moment::SampleDeviation}},
    MomentRow{StatisticsKey::PopulationY, {1, Moment::PopulationDeviation}},
};

}  // namespace

std::span<const StatisticsKeyRow> StatisticsKeyRows(DataShape shape) {
  if (shape == DataShape::OneVariable) return kOneVariableRows;
  return kTwoVariableRows;
}

const StatisticsKeyRow* RowOf(StatisticsKey key, DataShape shape) {
  for (const StatisticsKeyRow& row : StatisticsKeyRows(shape)) {
    if (row.key == key) return &row;
  }
  return nullptr;
}

const StatisticsPlaces& StatisticsPlacesOf(DataShape shape) {
  return shape == DataShape::OneVariable ? kOneVariablePlaces : kTwoVariablePlaces;
}

std::optional<KeyMoment> MomentOf(StatisticsKey key) {
  for (const MomentRow& row : kMoments) {
    if (row.key == key) return row.moment;
  }
  return std::nullopt;
}

}  // namespace kav
