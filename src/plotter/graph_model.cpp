#include "plotter/graph_model.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "common/number_text.h"
#include "display/copied_text.h"
#include "display/number_input.h"
#include "line/shown_number.h"
#include "plotter/equation_list.h"
#include "plotter/plotter_texts.h"
#include "plotter/range_fields.h"

namespace kav {
namespace {

/// The part of the width or height by which a range is zoomed or moved.
constexpr double kChangePart = 0.2;

/// Into how many parts a plot of that scale divides the way from one sample to the next: shorter
/// ones than a pixel and a half are not seen.
int PartsOfSample(double scale) {
  constexpr double kLarge = 2;
  constexpr double kShortest = 1.5;
  return scale < kLarge ? 1 : std::max(2, static_cast<int>(std::min(scale / kShortest, 100.)));
}

/// How far two bounds move, as parts of their distance.
struct Shift {
  double lower = 0;
  double upper = 0;
};
struct RangeShift {
  Shift x{};
  Shift y{};
};

constexpr Shift kUp{kChangePart, kChangePart};
constexpr Shift kDown{-kChangePart, -kChangePart};
constexpr Shift kInwards{kChangePart, -kChangePart};
constexpr Shift kOutwards{-kChangePart, kChangePart};

/// What a change does to the range; nothing for the changes that restore one.
RangeShift ShiftOf(RangeChange change) {
  switch (change) {
    case RangeChange::MoveLeft:
      return {.x = kDown};
    case RangeChange::MoveRight:
      return {.x = kUp};
    case RangeChange::MoveUp:
      return {.y = kUp};
    case RangeChange::MoveDown:
      return {.y = kDown};
    case RangeChange::ZoomIn:
      return {kInwards, kInwards};
    case RangeChange::ZoomOut:
      return {kOutwards, kOutwards};
    case RangeChange::Reset:
    case RangeChange::Undo:
      break;
  }
  return {};
}

PlotRange Shifted(const PlotRange& range, RangeShift shift) {
  const double width = range.xMax - range.xMin;
  const double height = range.yMax - range.yMin;
  return {range.xMin + shift.x.lower * width, range.xMax + shift.x.upper * width,
          range.yMin + shift.y.lower * height, range.yMax + shift.y.upper * height};
}

std::u16string Shown(double value, DisplayFormat format) {
  return ShownNumber(value, format, BaseMode::Decimal);
}

}  // namespace

int RowOf(const PlotRange& range, const PlotArea& area, double y) {
  const double row =
      area.bottom - (area.bottom - area.top) / (range.yMax - range.yMin) * (y - range.yMin);
  // In a range too flat for double, the row of the lower bound is not a number.
  return row < area.bottom ? static_cast<int>(std::max<double>(row, area.top)) : area.bottom;
}

GraphModel::GraphModel(GraphInput input)
    : input_(std::move(input)),
      range_(input_.range),
      undo_(input_.range),
      options_(input_.options) {}

CurveRows GraphModel::Rows(std::size_t index) const {
  return SampleCurve(input_.curves[index].formula, range_, input_.angle, {area_.top, area_.bottom});
}

std::vector<CurveStroke> GraphModel::Strokes(std::size_t index) const {
  return SampleStrokes(input_.curves[index].formula, range_, input_.angle,
                       {area_.top, area_.bottom}, PartsOfSample(area_.Scale()));
}

ChangeRefusal GraphModel::Change(RangeChange change) {
  switch (change) {
    case RangeChange::Undo:
      return canUndo_ ? Take(undo_) : std::nullopt;
    case RangeChange::Reset:
      return Take(input_.range);
    default:
      return Take(Shifted(range_, ShiftOf(change)));
  }
}

ChangeRefusal GraphModel::Apply(const PlotRange& range, const GraphOptions& options) {
  if (const auto refusal = RangeRefusal(range)) return refusal;
  options_ = options;
  return range == range_ ? std::nullopt : Take(range);
}

ChangeRefusal GraphModel::Take(const PlotRange& range) {
  if (const auto refusal = DrawingRefusal(range)) return refusal;
  undo_ = std::exchange(range_, range);
  canUndo_ = true;
  return std::nullopt;
}

ChangeRefusal GraphModel::ZoomToBox(GraphPlace from, GraphPlace to, double pixel) {
  const double shortest = kShortestDrag * pixel;
  const bool isBox =
      std::fabs(to.column - from.column) >= shortest && std::fabs(to.row - from.row) >= shortest;
  if (traces_ || !isBox || !IsInPlot(from)) return std::nullopt;
  // XAt multiplies in another order, and so differs in the last digit.
  const auto yAt = [this](double row) {
    return range_.yMin +
           (area_.bottom - row) * (range_.yMax - range_.yMin) / (area_.bottom - area_.top);
  };
  const auto xAt = [this](double column) {
    return range_.xMin +
           (column - area_.left) * (range_.xMax - range_.xMin) / (area_.right - area_.left);
  };
  const auto [left, right] = std::minmax(from.column, to.column);
  const auto [top, bottom] = std::minmax(from.row, to.row);
  return Take({xAt(left), xAt(right), yAt(bottom), yAt(top)});
}

void GraphModel::SelectCurve(int index) {
  if (index >= 0 && static_cast<std::size_t>(index) < input_.curves.size()) selected_ = index;
}

bool GraphModel::IsInPlot(GraphPlace place) const {
  return place.column >= area_.left && place.column <= area_.right && place.row >= area_.top &&
         place.row <= area_.bottom;
}

double GraphModel::XAt(double column) const {
  return range_.xMin +
         (range_.xMax - range_.xMin) / (area_.right - area_.left) * (column - area_.left);
}

std::optional<GraphReading> GraphModel::Tap(GraphPlace place) {
  if (!IsInPlot(place)) return std::nullopt;
  if (traces_) return Trace(XAt(place.column));
  tracedX_.reset();
  return ReadPoint(place);
}

GraphReading GraphModel::ReadPoint(GraphPlace place) {
  const double y = range_.yMin + (range_.yMax - range_.yMin) / (area_.bottom - area_.top + 1) *
                                     (area_.bottom - place.row + 1);
  GraphReading reading;
  reading.x = Shown(XAt(place.column), input_.format);
  tappedX_ = reading.x;
  reading.values.push_back(Shown(y, input_.format));
  reading.lines.push_back(std::u16string(kTouchedYPrefix) + reading.values.front());
  return reading;
}

Expected<GraphReading, std::u16string> GraphModel::Calculate(std::u16string_view text) {
  const std::u16string_view typed = TrimBlanks(text).empty() ? std::u16string_view(u"0") : text;
  const std::u16string refusal = FieldTakesNumbers(kTracedXField, typed);
  const auto x = ReadX(typed, refusal);
  if (!x) return x.error();
  if (!std::isfinite(*x)) return refusal;
  return ReadCurves(*x, typed);
}

Expected<double, std::u16string> GraphModel::ReadX(std::u16string_view typed,
                                                   std::u16string_view refusal) const {
  // Nobody is asked about the separators that a tap on the plot wrote.
  const bool isShown = !tappedX_.empty() && typed == tappedX_;
  if (isShown) return ReadShownNumber(Narrow(typed)).value_or(0);
  return ReadNumberOrExpression(typed, refusal, input_.angle);
}

/// Shows x with all of its digits, so that "Cal" on the field shows the same values again.
GraphReading GraphModel::Trace(double x) {
  const std::u16string shown = InsertedNumber(x, input_.format, BaseMode::Decimal);
  GraphReading reading = ReadCurves(ReadShownNumber(Narrow(shown)).value_or(x), shown);
  tracedX_ = x;
  return reading;
}

GraphReading GraphModel::ReadCurves(double x, std::u16string_view shown) {
  tracedX_ = x;
  GraphReading reading;
  reading.x = shown;
  for (std::size_t i = 0; i < input_.curves.size(); ++i) {
    reading.values.push_back(ValueOf(i, x));
    const std::u16string& value = reading.values.back();
    reading.lines.push_back(CurveValuePrefix(PlaceOfLabel(input_.curves[i].label, i)) +
                            (value.empty() ? std::u16string(kValueOutOfRange) : value));
  }
  reading.selected = selected_;
  return reading;
}

/// Empty if the curve has none at `x`.
std::u16string GraphModel::ValueOf(std::size_t index, double x) const {
  const auto y = input_.curves[index].formula.At({.x = x}, input_.angle);
  return y ? Shown(*y, input_.format) : std::u16string();
}

std::optional<std::u16string> CopiedReading(const GraphReading& reading, ReadingPart part,
                                            std::optional<int> line) {
  const auto at = static_cast<std::size_t>(line.value_or(0));
  const std::u16string x = PlainDigits(TrimBlanks(reading.x));
  const std::u16string y = at < reading.values.size() ? PlainDigits(reading.values[at]) : u"";
  if (x.empty() || (y.empty() && part != ReadingPart::X)) return std::nullopt;
  switch (part) {
    case ReadingPart::Point:
      return x + u'\t' + y;
    case ReadingPart::X:
      return x;
    case ReadingPart::Y:
      return y;
  }
  return std::nullopt;
}

std::optional<GraphReading> GraphModel::Step(int columns) {
  if (!traces_) return std::nullopt;
  constexpr double kLast = kSampleCount - 1;
  const double at = tracedX_ ? (*tracedX_ - range_.xMin) / (range_.xMax - range_.xMin) * kLast
                             : std::floor(kLast / 2);
  const double sample = std::clamp(std::round(std::clamp(at, 0., kLast)) + columns, 0., kLast);
  return Trace(SampleX(range_, sample));
}

std::optional<double> GraphModel::MarkerColumn() const {
  const bool isInRange = tracedX_ && *tracedX_ >= range_.xMin && *tracedX_ <= range_.xMax;
  if (!traces_ || !isInRange) return std::nullopt;
  return area_.left +
         (*tracedX_ - range_.xMin) / (range_.xMax - range_.xMin) * (area_.right - area_.left);
}

std::optional<GraphPlace> GraphModel::Marker() const {
  const auto column = MarkerColumn();
  if (!column) return std::nullopt;
  const auto& formula = input_.curves[static_cast<std::size_t>(selected_)].formula;
  const auto y = formula.At({.x = *tracedX_}, input_.angle);
  if (!y || *y < range_.yMin || *y > range_.yMax) return std::nullopt;
  return GraphPlace{*column, static_cast<double>(RowOf(range_, area_, *y))};
}

std::vector<std::u16string> GraphModel::RangeLabels() const {
  return options_.hasCoordinates ? Bounds() : std::vector<std::u16string>();
}

std::u16string GraphModel::Description() const {
  std::u16string text;
  for (const GraphCurve& curve : input_.curves) text.append(curve.label).append(kBetweenParts);
  if (!input_.points.empty()) {
    text.append(DataPointsText(input_.points.size())).append(kBetweenParts);
  }
  for (const std::u16string& bound : Bounds()) text.append(bound).append(kBetweenParts);
  text.resize(text.size() - kBetweenParts.size());
  return text;
}

std::vector<std::u16string> GraphModel::Bounds() const {
  std::vector<std::u16string> labels;
  labels.reserve(kRangeFields.size());
  for (const RangeField field : kRangeFields) {
    labels.push_back(std::u16string(kRangeLabels[IndexOf(field)]) +
                     Shown(range_.*BoundOf(field), input_.format));
  }
  return labels;
}

}  // namespace kav
