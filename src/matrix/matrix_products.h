// Products of matrices, cell by cell and in turn.
#pragma once

#include "matrix/working_matrix.h"

namespace kav {

/// `a` times `b`: `a` must have as many columns as `b` rows. Each sum of products runs over the
/// shared index in its order and is rounded once, as its cell.
WorkingMatrix ProductOf(const WorkingMatrix& a, const WorkingMatrix& b);

}  // namespace kav
