// Where the intermediate results of a matrix expression are kept.
#pragma once

#include <optional>
#include <string>

#include "matrix/matrix_value.h"

namespace kav {

/// Matrices under names.
class IntermediateMatrices {
 public:
  IntermediateMatrices() = default;
  IntermediateMatrices(const IntermediateMatrices&) = delete;
  IntermediateMatrices& operator=(const IntermediateMatrices&) = delete;
  virtual ~IntermediateMatrices() = default;

  /// Keeps `matrix` under `name` and replaces what is there. Whether it succeeded; if not, nothing
  /// has the name.
  virtual bool Write(const std::string& name, const MatrixValue& matrix) = 0;
  /// nullopt if it cannot be read.
  virtual std::optional<MatrixValue> Read(const std::string& name) const = 0;
  /// Does nothing if there is no such matrix.
  virtual void Remove(const std::string& name) = 0;
};

}  // namespace kav
