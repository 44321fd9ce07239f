// The functions of matrix expressions.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_token.h"
#include "matrix/matrix_value.h"

namespace kav {

/// The matrices that a function is called with, in order; null for an argument that is a number or
/// missing.
inline constexpr std::size_t kMostMatrixArguments = 2;
using MatrixArguments = std::array<const MatrixValue*, kMostMatrixArguments>;

struct MatrixFunctionRow {
  MatrixFunction code;
  std::string_view name;       ///< as expressions write it, in lower case
  std::string_view operation;  ///< as messages name it
  std::size_t argumentCount;   ///< 1 to kMostMatrixArguments
  /// Takes `argumentCount` matrices; the others are ignored.
  CalcResult<MatrixValue> (*apply)(const MatrixArguments& arguments);
};

/// All functions, in the order of their codes.
std::span<const MatrixFunctionRow> MatrixFunctions();
const MatrixFunctionRow& RowOf(MatrixFunction function);

/// `function` of `arguments`. Fails with MatrixArgumentError if one that it takes is null, else as
/// its operation does.
CalcResult<MatrixValue> ApplyMatrixFunction(MatrixFunction function,
                                            const MatrixArguments& arguments);

}  // namespace kav
