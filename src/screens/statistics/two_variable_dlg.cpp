#include "screens/statistics/two_variable_dlg.h"

#include <array>

#include "screens/plotter/graph_view.h"
#include "statistics/statistics_texts.h"
#include "statistics/two_variable_model.h"

namespace kav {
namespace {

constexpr std::array kTwoVariableColumns{DataColumn{kXHeading, 85}, DataColumn{kYHeading, 85},
                                         DataColumn{kShortCountHeading, 40}};

}  // namespace

CTwoVariableDlg::CTwoVariableDlg(Frame& frame, std::chrono::milliseconds patience)
    : StatisticsScreen(frame, ScreenMode::TwoVariable,
                       std::make_unique<TwoVariableModel>(frame.Store()), kTwoVariableColumns,
                       patience) {}

void CTwoVariableDlg::Do(const OpenGraph& request) {
  RunGraphView(this, request.input);
}

std::unique_ptr<QWidget> MakeTwoVariableScreen(Frame& frame) {
  return std::make_unique<CTwoVariableDlg>(frame);
}

}  // namespace kav
