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

/// Runs the dialog, which begins with the size `now`. The chosen size; nullopt if it was cancelled.
std::optional<MatrixSize> RunMatrixSize(QWidget* parent, MatrixSize now);

}  // namespace kav
