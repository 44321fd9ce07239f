#include "screens/plotter/graph_painter_view.h"

#include <QPainter>
#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <cmath>

#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

// In pixels of a plot 230 pixels wide.
constexpr double kSideMargin = 2;
constexpr double kTopMargin = 3;
constexpr double kPictureWidth = kSampleCount + 2 * kSideMargin;

// The time to paint a path grows faster than its length.
constexpr qsizetype kSegmentsAtOnce = 8;

struct GraphColourRow {
  GraphColour light;  ///< as the picture names it
  Colour what;
};

constexpr std::array kGraphColours{
    GraphColourRow{graph_colour::kPaper, Colour::GraphPaper},
    GraphColourRow{graph_colour::kInk, Colour::GraphInk},
    GraphColourRow{graph_colour::kGrid, Colour::GraphGrid},
    GraphColourRow{graph_colour::kAxis, Colour::GraphAxis},
    GraphColourRow{graph_colour::kMarker, Colour::GraphMarker},
    GraphColourRow{graph_colour::kCurves[0], Colour::FirstCurve},
    GraphColourRow{graph_colour::kCurves[1], Colour::SecondCurve},
    GraphColourRow{graph_colour::kCurves[2], Colour::ThirdCurve},
};

QColor ColourOfGraph(ColourScheme scheme, GraphColour colour) {
  for (const auto& [light, what] : kGraphColours) {
    if (light == colour) return ColourIn(scheme, what);
  }
  return QColor::fromRgb(QRgb(colour));
}

QRect RectOf(const PlotArea& area) {
  return {QPoint(area.left, area.top), QPoint(area.right, area.bottom)};
}

/// The middle of the pixel at `place`.
QPointF MiddleOf(GraphPlace place) {
  return {place.column + 0.5, place.row + 0.5};
}

int Pixels(double length) {
  return std::max(static_cast<int>(std::lround(length)), 1);
}

/// Paints each shape that it is called with.
class ShapePainter {
 public:
  ShapePainter(QPainter& painter, const PlotArea& area, ColourScheme scheme)
      : painter_(painter), area_(area), scale_(area.Scale()), scheme_(scheme) {
    QFont font = ScreenFont(Pixels(graph_measures::kTextHeight * area.TextScale()));
    // The coloured fringes of subpixels suit one screen only, and a saved picture is shown on any.
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    painter_.setFont(font);
  }

  void operator()(const GraphFrame& frame) {
    const QRect area = RectOf(frame.area);
    const QRect within = area.adjusted(Line(), Line(), -Line(), -Line());
    const QColor ink = Shown(graph_colour::kInk);
    for (const QRect& side : {QRect(area.topLeft(), QSize(area.width(), Line())),
                              QRect(area.left(), within.bottom() + 1, area.width(), Line()),
                              QRect(area.topLeft(), QSize(Line(), area.height())),
                              QRect(within.right() + 1, area.top(), Line(), area.height())}) {
      painter_.fillRect(side, ink);
    }
  }

  void operator()(const GraphRule& rule) {
    const QRect line = QRect(PixelAt(rule.from), PixelAt(rule.to)).normalized();
    const int before = Line() / 2;
    const int after = Line() - 1 - before;
    // The frame is not painted over.
    const QRect wide = line.width() > line.height()
                           ? line.adjusted(Line(), -before, -Line(), after)
                           : line.adjusted(-before, Line(), after, -Line());
    painter_.fillRect(wide, Shown(rule.colour));
  }

  void operator()(const GraphStroke& stroke) {
    QVarLengthArray<QPointF, kSampleCount> places;
    for (const GraphPlace place : stroke.places) places.append(MiddleOf(place));
    Clip();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(
        QPen(Shown(stroke.colour),
             std::max(graph_measures::kNarrowestStroke, graph_measures::kStrokeGrowth * scale_),
             Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    for (qsizetype i = 0; i + 1 < places.size(); i += kSegmentsAtOnce) {
      // With one segment of the next piece, so that no seam is seen.
      const qsizetype count = std::min(kSegmentsAtOnce + 2, places.size() - i);
      painter_.drawPolyline(places.data() + i, static_cast<int>(count));
    }
    Restore();
  }

  void operator()(const GraphDot& dot) {
    const int side = Pixels(scale_);
    Clip();
    painter_.fillRect(QRect(PixelAt(dot.place) - QPoint(side / 2, side / 2), QSize(side, side)),
                      Shown(dot.colour));
    Restore();
  }

  void operator()(const GraphDisc& disc) {
    const double radius = disc.radius * scale_;
    Clip();
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(Shown(disc.colour));
    painter_.drawEllipse(MiddleOf(disc.place), radius, radius);
    Restore();
  }

  void operator()(const GraphBar& bar) {
    painter_.fillRect(QRect(PixelAt(bar.from), PixelAt(bar.to)).normalized(), Shown(bar.colour));
  }

  void operator()(const GraphText& text) {
    if (text.backing > 0) PaintBacking(text);
    painter_.setPen(Shown(text.colour));
    // Some faces have more room below the letters. With all of it the text would leave the plot at
    // the top.
    const int descent = std::min(painter_.fontMetrics().descent(),
                                 Pixels(graph_measures::kDescent * area_.TextScale()));
    painter_.drawText(PixelAt(text.place) - QPoint(Before(text), descent), ToQt(text.text));
  }

 private:
  void PaintBacking(const GraphText& text) {
    QColor paper = Shown(graph_colour::kPaper);
    paper.setAlphaF(static_cast<float>(graph_measures::kBackingOpacity));
    const QPoint end = PixelAt(text.place);
    const int top = PixelAt({text.place.column, text.place.row - text.backing}).y();
    const int free = Pixels(area_.TextScale());
    const int width = painter_.fontMetrics().horizontalAdvance(ToQt(text.text)) + 2 * free;
    painter_.fillRect(QRect(end.x() - free - Before(text), top, width, end.y() - top), paper);
  }

  /// How much of the text is left of its place.
  int Before(const GraphText& text) const {
    if (text.anchor == TextAnchor::Start) return 0;
    const int width = painter_.fontMetrics().horizontalAdvance(ToQt(text.text));
    return text.anchor == TextAnchor::Middle ? width / 2 : width;
  }

  QColor Shown(GraphColour colour) const { return ColourOfGraph(scheme_, colour); }
  int Line() const { return std::max(static_cast<int>(graph_measures::kRuleGrowth * scale_), 1); }
  static QPoint PixelAt(GraphPlace place) {
    return {static_cast<int>(std::lround(place.column)), static_cast<int>(std::lround(place.row))};
  }
  void Clip() {
    painter_.save();
    painter_.setClipRect(RectOf(area_));
  }
  void Restore() { painter_.restore(); }

  QPainter& painter_;
  PlotArea area_;
  double scale_;
  ColourScheme scheme_;
};

}  // namespace

PlotArea AreaWithin(QSize size) {
  const double scale = size.width() / kPictureWidth;
  const int side = Pixels(kSideMargin * scale);
  const int top = Pixels(kTopMargin * scale);
  // However small the picture, the area has two columns and two rows.
  return {side, top, std::max(size.width() - 1 - side, side + 1),
          std::max(size.height() - 1 - top, top + 1)};
}

QSize SizeAround(const PlotArea& area) {
  return {area.left + area.right + 1, area.top + area.bottom + 1};
}

void PaintShapes(QPainter& painter, const GraphPicture& shapes, const PlotArea& area,
                 ColourScheme scheme) {
  ShapePainter shapePainter(painter, area, scheme);
  for (const GraphShape& shape : shapes) std::visit(shapePainter, shape);
}

void PaintGraph(QPainter& painter, const GraphModel& model, ColourScheme scheme) {
  const PlotArea& area = model.Area();
  painter.fillRect(QRect(QPoint(0, 0), SizeAround(area)), ColourIn(scheme, Colour::GraphPaper));
  PaintShapes(painter, BuildPicture(model), area, scheme);
}

void DrawGraph(const GraphModel& model, QImage& image, ColourScheme scheme) {
  const QSize size = SizeAround(model.Area());
  if (image.size() != size) image = QImage(size, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintGraph(painter, model, scheme);
}

}  // namespace kav
