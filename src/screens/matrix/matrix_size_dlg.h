// The dialog that gives a matrix another size.
#pragma once

#include <optional>

class QWidget;

namespace kav {

/// Both from 1 to kLargestMatrix.
struct MatrixSize {
  int rows;
  int columns;
};

/// The size that the user chose, `now` being the one to begin with; nullopt where there was none.
std::optional<MatrixSize> RunMatrixSize(QWidget* parent, MatrixSize now);

}  // namespace kav
