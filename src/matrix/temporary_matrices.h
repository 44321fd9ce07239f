// The files that hold the intermediate results of a matrix expression.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "matrix/matrix_value.h"
#include "settings/file_descriptor.h"

namespace kav {

/// Matrices under the names "kavm0.dat", "kavm1.dat" and so on, in a folder that only this process
/// and its user can read. The folder is made when the first matrix is written and goes with the
/// object. A process that was forked off leaves the folder to its parent and makes its own.
class TemporaryMatrices {
 public:
  /// In `parent`, or in the system's folder for temporary files. Removes what processes that were
  /// killed have left there.
  TemporaryMatrices();
  explicit TemporaryMatrices(std::string parent);
  ~TemporaryMatrices();
  TemporaryMatrices(const TemporaryMatrices&) = delete;
  TemporaryMatrices& operator=(const TemporaryMatrices&) = delete;

  /// The name of the matrix `number`.
  static std::string NameOf(int number);

  /// Writes `matrix` under `name`, in place of what is there; whether that could be done. Where it
  /// could not, nothing has the name.
  bool Write(const std::string& name, const MatrixValue& matrix);
  /// nullopt where it cannot be read.
  std::optional<MatrixValue> Read(const std::string& name) const;
  void Remove(const std::string& name);

 private:
  bool IsOwner() const;
  bool MakeFolder();
  std::string PathOf(const std::string& name) const { return folder_ + '/' + name; }

  std::string parent_;
  std::string folder_;       ///< empty until it is made
  FileDescriptor lock_{-1};  ///< the folder, locked: so others see that its process lives
  pid_t owner_ = 0;
};

}  // namespace kav
