// The options of kavcalc's commands.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "engine/tokenizer.h"
#include "matrix/matrix_properties.h"
#include "matrix/matrix_value.h"
#include "plotter/curve_sampling.h"
#include "plotter/plot_range.h"
#include "plotter/value_table.h"
#include "statistics/data_list.h"
#include "statistics/regression.h"

namespace kav {

/// The options of all commands, with their defaults.
struct Options {
  bool asksHelp = false;
  bool asksVersion = false;
  std::optional<AngleUnit> angle;  ///< nullopt: the stored one
  BaseMode base = BaseMode::Decimal;
  DisplayFormat display{.type = DisplayType::FloatingPoint};
  bool isRaw = false;        ///< 17 significant digits instead of `display` and `base`
  bool isJson = false;       ///< answers are objects, not lines of text
  std::string settingsFile;  ///< empty: the user's
  VariableType variables = VariableType::X;
  bool showsSteps = false;
  bool listsUnits = false;
  std::array<std::string, kMatrixCount> matrixFiles;  ///< paths; empty: no file
  bool hasCrLf = false;                               ///< matrices as the screen writes their files
  const MatrixProperty* property = nullptr;  ///< what to find of matrices; nullptr: nothing
  DataShape shape = DataShape::OneVariable;
  RegressionModel model = RegressionModel::Linear;
  std::vector<double> estimatesAtX;  ///< finite; each asks for an estimate of Y
  std::vector<double> estimatesAtY;  ///< finite; each asks for an estimate of X
  PlotRange range;                   ///< not checked: may be one that the plotter refuses
  std::optional<TablePlaces> table;  ///< not checked: may lead nowhere
  bool asksSvg = false;
  PlotRows area;  ///< not checked: `bottom` may be above `top`
};

}  // namespace kav
