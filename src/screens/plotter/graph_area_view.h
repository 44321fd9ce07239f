// The plot as a widget.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <optional>

#include "plotter/graph_model.h"

namespace kav {

/// What the user does to the plot.
struct GraphAreaHooks {
  /// A tap; while tracing, each place of a drag as well.
  std::function<void(GraphPlace)> tap;
  /// A drag, however short, while not tracing.
  std::function<void(GraphPlace from, GraphPlace to)> box;
  std::function<void(RangeChange)> change;
  // While tracing: the marker goes by so many columns, or to the curve so many after the selected.
  std::function<void(int columns)> step;
  std::function<void(int curves)> goToCurve;
};

/// Shows a graph in the pixels of the display. A drag draws a box, the wheel zooms, the arrow keys
/// move the range; while tracing, taps, drags and the arrow keys move the marker, with Shift by ten
/// columns.
class GraphAreaView final : public QWidget {
 public:
  /// `model` has to outlive the widget, which sets its area.
  GraphAreaView(GraphModel& model, GraphAreaHooks hooks);

  /// Range or options of the model are others.
  void Redraw();
  /// Its marker stands elsewhere.
  void MoveMarker();

  /// What stands beside it gives way until it is `pixels` high.
  void KeepHeight(int pixels);
  QSize minimumSizeHint() const override { return {0, keptHeight_}; }

 private:
  /// From where the button or the stylus went down to where it is.
  struct Drag {
    QPointF from;
    QPointF to;
    bool isTap;  ///< it has not left its beginning yet
  };

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  void FitArea();
  void PaintBand(QPainter& painter) const;
  void PaintFocus(QPainter& painter) const;
  bool OnKey(int key, int columns);
  bool OnTraceKey(int key, int columns);

  GraphPlace PlaceOf(QPointF point) const;
  GraphPlace NearestInPlot(QPointF point) const;
  /// How many units of the widget one pixel of a plot 230 pixels wide is.
  double Unit() const;

  GraphModel& model_;
  GraphAreaHooks hooks_;
  int keptHeight_ = 0;
  QImage picture_;
  bool isCurrent_ = false;  // whether the picture is that of the model
  std::optional<Drag> drag_;
  int wheel_ = 0;  // 120ths of notches that were turned and have not zoomed yet
};

}  // namespace kav
