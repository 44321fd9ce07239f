// The graph beside the keys of a wide window.
#pragma once

#include <QWidget>
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "common/expected.h"
#include "plotter/equation_list.h"
#include "plotter/graph_model.h"

class QCheckBox;
class QPushButton;

namespace kav {

class GraphAreaView;
class LabelList;

/// What the graph asks of its screen.
struct GraphSideHooks {
  std::function<void(std::size_t place)> switchCurve;
  std::function<void(const PlotRange& range)> takeRange;
};

/// A graph that follows what is typed, with a check box for each equation of the list, and the
/// values where the user taps. It is zoomed, moved and traced like a graph of its own; the range
/// that it was moved to stays until the fields name another one.
class GraphSideView final : public QWidget {
 public:
  GraphSideView(QWidget* screen, GraphSideHooks hooks);

  /// Shows `graph`; without one, the last one stays, and what is said takes the place of values.
  void Show(const Expected<GraphInput, std::u16string>& graph, const EquationList& equations);
  /// Letters are `pixels` high, or lower if the parts had no room.
  void LayOut(const QRect& place, int pixels);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  void MakeBoxes();
  void AddParts();
  GraphAreaView* NewArea();
  void Draw(const GraphInput& graph);
  void ShowCurves(const EquationList& equations);
  void Say(const GraphReading& reading);
  void Take(const std::optional<GraphReading>& reading);
  void Tell(ChangeRefusal refusal);
  void GoToCurve(int curves);
  void SetTraces();

  GraphSideHooks hooks_;
  GraphModel model_;
  GraphAreaView* area_;
  std::array<QCheckBox*, kMostCurves> curves_{};
  LabelList* results_;
  QCheckBox* trace_;
  QPushButton* takeRange_;
  int curve_ = 0;  ///< the one whose values are traced, of those that are drawn
  std::optional<GraphInput> drawn_;
};

}  // namespace kav
