#include "statistics/statistics_keypad.h"

#include <algorithm>
#include <array>

#include "statistics/statistics_texts.h"

namespace kav {
namespace {

constexpr LinePlace At(int x, int y, int width) {
  return {x, y, width, kKeyHeight};
}

// clang-format off
constexpr std::array kListKeys{
    StatisticsKeyRow{StatisticsKey::Add,    At( 55, 14, 26), KeyColour::Editing, u"Add"},
    StatisticsKeyRow{StatisticsKey::Ok,     At( 55, 14, 26), KeyColour::Editing, u"Ok"},
    StatisticsKeyRow{StatisticsKey::Cancel, At( 82, 14, 51), KeyColour::Editing, u"Cancel"},

    StatisticsKeyRow{StatisticsKey::Edit,   At(  3, 25, 25), KeyColour::Editing, u"Edit"},
    StatisticsKeyRow{StatisticsKey::Delete, At( 29, 25, 25), KeyColour::Editing, u"Delete"},
    StatisticsKeyRow{StatisticsKey::Clear,  At( 55, 25, 26), KeyColour::Editing, u"Clear"},
    StatisticsKeyRow{StatisticsKey::Save,   At( 82, 25, 25), KeyColour::Mode,    u"Save"},
    StatisticsKeyRow{StatisticsKey::Load,   At(108, 25, 25), KeyColour::Mode,    u"Load"},
};

constexpr std::array kOneVariableKeys{
    StatisticsKeyRow{StatisticsKey::SumX,        At(  3, 131, 35), KeyColour::Function,
                     u"ΣX", u"Sum of X"},
    StatisticsKeyRow{StatisticsKey::SquaresX,    At( 39, 131, 29), KeyColour::Function,
                     u"ΣX^2", u"Sum of squares of X"},
    StatisticsKeyRow{StatisticsKey::MeanX,       At( 69, 131, 64), KeyColour::Function,
                     u"Arithmetic Mean of X"},

    StatisticsKeyRow{StatisticsKey::SampleX,     At(  3, 142, 35), KeyColour::Function,
                     u"σ(n-1) of X", u"Sample standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::PopulationX, At( 39, 142, 29), KeyColour::Function,
                     u"σ(n) of X", u"Population standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::MemoryMenu,  At( 69, 142, 64), KeyColour::Orange,
                     u"MEM", u"Memory variables"},
};

// The columns are as wide as the captions of their first two rows need them.
constexpr std::array kTwoVariableKeys{
    StatisticsKeyRow{StatisticsKey::SumX,        At(  3, 109, 17), KeyColour::Function,
                     u"ΣX", u"Sum of X"},
    StatisticsKeyRow{StatisticsKey::SquaresX,    At( 21, 109, 18), KeyColour::Function,
                     u"ΣX^2", u"Sum of squares of X"},
    StatisticsKeyRow{StatisticsKey::MeanX,       At( 40, 109, 31), KeyColour::Function,
                     u"Mean of X"},
    StatisticsKeyRow{StatisticsKey::SampleX,     At( 72, 109, 33), KeyColour::Function,
                     u"σ(n-1) of X", u"Sample standard deviation of X"},
    StatisticsKeyRow{StatisticsKey::PopulationX, At(106, 109, 27), KeyColour::Function,
                     u"σ(n) of X", u"Population standard deviation of X"},

    StatisticsKeyRow{StatisticsKey::SumY,        At(  3, 120, 17), KeyColour::Function,
                     u"ΣY", u"Sum of Y"},
    StatisticsKeyRow{StatisticsKey::SquaresY,    At( 21, 120, 18), KeyColour::Function,
                     u"ΣY^2", u"Sum of squares of Y"},
    StatisticsKeyRow{StatisticsKey::MeanY,       At( 40, 120, 31), KeyColour::Function,
                     u"Mean of Y"},
    StatisticsKeyRow{StatisticsKey::SampleY,     At( 72, 120, 33), KeyColour::Function,
                     u"σ(n-1) of Y", u"Sample standard deviation of Y"},
    StatisticsKeyRow{StatisticsKey::PopulationY, At(106, 120, 27), KeyColour::Function,
                     u"σ(n) of Y", u"Population standard deviation of Y"},

    StatisticsKeyRow{StatisticsKey::Products,    At(  3, 131, 17), KeyColour::Function,
                     u"ΣXY", u"Sum of products of X and Y"},
    StatisticsKeyRow{StatisticsKey::A,           At( 21, 131, 18), KeyColour::Digit,
                     u"A", u"Coefficient A"},
    StatisticsKeyRow{StatisticsKey::B,           At( 40, 131, 31), KeyColour::Digit,
                     u"B", u"Coefficient B"},
    StatisticsKeyRow{StatisticsKey::Correlation, At( 72, 131, 33), KeyColour::Digit,
                     u"r", u"Correlation coefficient"},
    StatisticsKeyRow{StatisticsKey::C,           At( 72, 131, 33), KeyColour::Digit,
                     u"C", u"Coefficient C"},
    StatisticsKeyRow{StatisticsKey::Model,       At(106, 131, 27), KeyColour::Orange,
                     kLinearCaption, u"Regression model"},

    StatisticsKeyRow{StatisticsKey::EstimateY,   At(  3, 142, 17), KeyColour::Digit,
                     u"Y'", u"Estimate of Y"},
    StatisticsKeyRow{StatisticsKey::Plot,        At( 21, 142, 18), KeyColour::Equals,
                     u"Plot"},
    StatisticsKeyRow{StatisticsKey::EstimateX,   At( 40, 142, 31), KeyColour::Digit,
                     u"X'", u"Estimate of X"},
    StatisticsKeyRow{StatisticsKey::EstimateX1,  At( 40, 142, 31), KeyColour::Digit,
                     u"X1'", u"First estimate of X"},
    StatisticsKeyRow{StatisticsKey::EstimateX2,  At( 72, 142, 33), KeyColour::Digit,
                     u"X2'", u"Second estimate of X"},
    StatisticsKeyRow{StatisticsKey::MemoryMenu,  At(106, 142, 27), KeyColour::Orange,
                     u"MEM", u"Memory variables"},
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
    .xLabel = At(3, 3, 25),
    .x = At(29, 3, 104),
    .yLabel = {},
    .y = {},
    .countLabel = At(3, 14, 25),
    .count = At(29, 14, 25),
    .totalLabel = At(82, 14, 22),
    .total = At(104, 14, 29),
    .list = {3, 36, 130, 83},
    .result = At(3, 120, 130),
};

constexpr StatisticsPlaces kTwoVariablePlaces{
    .xLabel = At(3, 3, 10),
    .x = At(14, 3, 53),
    .yLabel = At(69, 3, 10),
    .y = At(80, 3, 53),
    .countLabel = At(3, 14, 25),
    .count = At(29, 14, 25),
    .totalLabel = At(82, 14, 22),
    .total = At(104, 14, 29),
    .list = {3, 36, 130, 61},
    .result = At(3, 98, 130),
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
