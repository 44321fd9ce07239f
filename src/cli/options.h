// What kavcalc is asked to do: the command, its options and its items.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/expected.h"
#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "engine/tokenizer.h"
#include "matrix/matrix_value.h"
#include "plotter/curve_sampling.h"
#include "plotter/plot_range.h"
#include "statistics/data_list.h"
#include "statistics/regression.h"

namespace kav {

struct Command;

/// The options of all commands, with their defaults.
struct Options {
  std::optional<AngleUnit> angle;  ///< none: the stored one
  BaseMode base = BaseMode::Decimal;
  DisplayFormat display{.type = DisplayType::FloatingPoint};
  bool isRaw = false;        ///< 17 significant digits instead of `display` and `base`
  std::string settingsFile;  ///< empty: the user's
  VariableType variables = VariableType::X;
  bool showsSteps = false;
  bool listsUnits = false;
  std::array<std::string, kMatrixCount> matrixFiles;  ///< empty where there is none
  DataShape shape = DataShape::OneVariable;
  RegressionModel model = RegressionModel::Linear;
  std::vector<double> estimatesAtX;  ///< where Y is asked for
  std::vector<double> estimatesAtY;  ///< where X is
  PlotRange range;                   ///< as given: perhaps one to refuse
  PlotRows area;                     ///< as given, even if bottom is above
};

/// A command line that can be carried out. `items` are what the command works on, in order; with
/// none it works on standard input. They view the arguments, which must outlive them.
struct CommandLine {
  const Command* command;
  Options options;
  std::vector<std::string_view> items;
};

/// Why nothing is to be carried out: help or version was asked for (status 0, `text` is the answer)
/// or the arguments are unusable (status 2, `text` is the reason and a usage line).
struct EarlyEnd {
  int status;
  std::string text;
};

/// Reads the arguments behind the program's name. The first of them that is no option tells the
/// command by its name, or else is an expression for the command eval.
Expected<CommandLine, EarlyEnd> ReadCommandLine(std::span<const char* const> arguments);

}  // namespace kav
