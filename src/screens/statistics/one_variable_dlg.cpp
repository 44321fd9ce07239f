#include "screens/statistics/one_variable_dlg.h"

#include <array>

#include "statistics/statistics_texts.h"

namespace kav {
namespace {

constexpr std::array kOneVariableColumns{DataColumn{kXHeading, 117}, DataColumn{kCountHeading, 45}};

}  // namespace

COneVariableDlg::COneVariableDlg(Frame& frame, std::chrono::milliseconds patience)
    : StatisticsScreen(frame, ScreenMode::OneVariable,
                       std::make_unique<StatisticsModel>(DataShape::OneVariable, frame.Store()),
                       kOneVariableColumns, patience) {}

std::unique_ptr<QWidget> MakeOneVariableScreen(Frame& frame) {
  return std::make_unique<COneVariableDlg>(frame);
}

}  // namespace kav
