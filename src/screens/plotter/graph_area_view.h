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
  /// A tap. While tracing, also each place of a drag.
  std::function<void(GraphPlace)> tap;
  /// A drag while not tracing.
  std::function<void(GraphPlace from, GraphPlace to)> box;
  std::function<void(RangeChange)> change;
  // While tracing: moves the marker by columns, or selects the curve so many places further.
  std::function<void(int columns)> step;
  std::function<void(int curves)> goToCurve;
};

/// Shows a graph in the pixels of the display. A drag draws a box, the wheel zooms, the arrow keys
/// move the range. While tracing, taps, drags and the arrow keys move the marker, with Shift by ten
/// columns.
class GraphAreaView final : public QWidget {
 public:
  /// The widget sets the area of `model`, which must outlive it.
  GraphAreaView(GraphModel& model, GraphAreaHooks hooks);

  /// To be called when range or options of the model have changed.
  void Redraw();
  /// To be called when only its marker has.
  void MoveMarker();

  /// Sets the height, in pixels, below which the layout does not shrink it.
  void KeepHeight(int pixels);
  QSize minimumSizeHint() const override { return {0, keptHeight_}; }

 private:
  /// From the place where the button or the stylus went down to the place where it is now.
  struct Drag {
    QPointF from;
    QPointF to;
    bool isTap;  ///< has stayed near `from`
  };

  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
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
  /// The size of a pixel of a plot 230 pixels wide, in units of the widget.
  double Unit() const;

  GraphModel& model_;
  GraphAreaHooks hooks_;
  int keptHeight_ = 0;
  QImage picture_;
  bool isCurrent_ = false;  ///< `picture_` shows the model as it is
  std::optional<Drag> drag_;
  int wheel_ = 0;  ///< how far the wheel was turned without zooming yet, in 120ths of a notch
};

}  // namespace kav
