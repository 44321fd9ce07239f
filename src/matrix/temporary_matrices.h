// The files that hold the intermediate results of a matrix expression.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "matrix/intermediate_matrices.h"
#include "matrix/matrix_value.h"
#include "settings/file_descriptor.h"

namespace kav {

/// Matrices under the names "kavm0.dat", "kavm1.dat" and so on, in a folder of this process that
/// only its user can read. The first Write makes the folder, the destructor removes it. A forked
/// child leaves the folder to its parent and makes its own.
class TemporaryMatrices final : public IntermediateMatrices {
 public:
  /// The folder is made in `parent`, or in the system's folder for temporary files. Removes what
  /// killed processes have left there.
  TemporaryMatrices();
  explicit TemporaryMatrices(std::string parent);
  ~TemporaryMatrices() override;

  /// Such as "kavm7.dat" for 7.
  static std::string NameOf(int number);

  bool Write(const std::string& name, const MatrixValue& matrix) override;
  std::optional<MatrixValue> Read(const std::string& name) const override;
  void Remove(const std::string& name) override;

 private:
  bool IsOwner() const;
  bool MakeFolder();
  std::string PathOf(const std::string& name) const { return folder_ + '/' + name; }

  std::string parent_;
  std::string folder_;       ///< empty until it is made
  FileDescriptor lock_{-1};  ///< the folder, locked so that others see that its process lives
  pid_t owner_ = 0;
};

}  // namespace kav
