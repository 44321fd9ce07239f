// A graph of three curves: drawn anew, sampling included, when its range has changed, copied to the
// screen when it has not, and made a BMP file.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "screens/plotter/graph_painter_view.h"
#include "screens/plotter/graph_saving_view.h"

namespace kav {
namespace {

/// A graph in a plot of `size` in pixels, margins included.
GraphModel MakeGraph(QSize size) {
  GraphInput input;
  input.angle = AngleUnit::Radians;
  for (const std::string_view text : {"10*sin(x)", "1/x", "x^2/5-3"}) {
    auto formula = CheckFormula(text, VariableType::X);
    if (formula) input.curves.push_back({u"F(X)", *std::move(formula)});
  }
  GraphModel model(std::move(input));
  model.SetArea(AreaWithin(size));
  return model;
}

// The plots of windows 240, 480 and 1080 pixels wide.
void PlotSizes(benchmark::internal::Benchmark* bench) {
  bench->Args({234, 185})->Args({470, 398})->Args({1054, 882})->Unit(benchmark::kMicrosecond);
}

QSize SizeOf(const benchmark::State& state) {
  return {static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
}

void RedrawGraph(benchmark::State& state) {
  GraphModel model = MakeGraph(SizeOf(state));
  QImage image;
  RangeChange change = RangeChange::MoveLeft;
  for (auto _ : state) {
    model.Change(change);
    DrawGraph(model, image);
    benchmark::DoNotOptimize(image.constBits());
    change = change == RangeChange::MoveLeft ? RangeChange::MoveRight : RangeChange::MoveLeft;
  }
}
BENCHMARK(RedrawGraph)->Apply(PlotSizes);

void CopyGraph(benchmark::State& state) {
  QImage image;
  DrawGraph(MakeGraph(SizeOf(state)), image);
  QImage screen(image.size(), QImage::Format_RGB32);
  QPainter painter(&screen);
  for (auto _ : state) {
    painter.drawImage(0, 0, image);
    benchmark::DoNotOptimize(screen.constBits());
  }
}
BENCHMARK(CopyGraph)->Apply(PlotSizes);

void PrintGraphAsBmp(benchmark::State& state) {
  const GraphModel model = MakeGraph(SizeOf(state));
  for (auto _ : state) benchmark::DoNotOptimize(PrintGraph(model, GraphFile::Bmp));
}
BENCHMARK(PrintGraphAsBmp)->Apply(PlotSizes);

}  // namespace
}  // namespace kav

int main(int argc, char** argv) {
  // Fonts need an application; it needs no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
