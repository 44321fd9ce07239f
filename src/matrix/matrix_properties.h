// What a matrix is asked for beside the operations that expressions write: numbers that tell about
// it, and its factors.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/calc_error.h"
#include "matrix/matrix_value.h"

namespace kav {

/// One number or one matrix.
struct PropertyValue {
  std::optional<double> number;
  MatrixValue matrix;  ///< if there is no number
};

struct MatrixProperty {
  std::string_view name;         ///< as the command line knows it
  std::u16string_view item;      ///< of the menu
  std::u16string_view help;      ///< what it is, and how exact
  std::string_view operation;    ///< as messages name it
  std::u16string_view told;      ///< stands before the name of the matrix
  std::u16string_view toldMore;  ///< behind it: of eigenvalues, if some are complex
  /// Fails with MatrixSizeMismatch if it takes a square only, and with MatrixHasNoConvergence.
  CalcResult<PropertyValue> (*find)(const MatrixProperty& property, const MatrixValue& matrix);
};

/// All of them, in the order of the menu.
std::span<const MatrixProperty> MatrixProperties();

/// The one called `name`; nullptr if there is none.
const MatrixProperty* FindProperty(std::string_view name);

/// `property` of `matrix`, which has 1 to kLargestMatrix rows and columns. Cells are read as the
/// operations read them. Fails with CalcErrorCode::OutOfRange if one of them, or a part of the
/// result, is not finite, else as the property does.
CalcResult<PropertyValue> PropertyOf(const MatrixProperty& property, const MatrixValue& matrix);

/// What the result line says in front of a number, or alone about a matrix: "Rank of [M1]". `index`
/// is that of the matrix asked about.
std::u16string PropertyTitle(const MatrixProperty& property, const PropertyValue& value, int index);

}  // namespace kav
