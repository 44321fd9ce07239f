#include "cli/matrix_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

#include "cli/cli_texts.h"
#include "cli/descriptor.h"
#include "cli/typed_lines.h"
#include "cli/unreadable.h"
#include "common/number_text.h"
#include "matrix/matrix_file.h"
#include "settings/file_descriptor.h"

namespace kav {
namespace {

/// All bytes of the open file `descriptor`, or why they cannot be had.
Expected<std::string, std::u16string> ReadBytes(int descriptor) {
  auto bytes = ReadAll(descriptor, kLargestMatrixFile + 1);
  if (!bytes) return WhyUnreadable(bytes.error());
  if (bytes->size() > kLargestMatrixFile) return Widen(TooLargeForAMatrix(kLargestMatrixFile));
  return *std::move(bytes);
}

std::string ReasonOf(const MatrixFault& fault) {
  switch (fault.kind) {
    case MatrixFault::Kind::NoSize:
      return HasNoMatrixSize(kLargestMatrix);
    case MatrixFault::Kind::OtherCells:
      return HasOtherCells(fault.line);
    case MatrixFault::Kind::NoRow:
      return LacksARow(fault.line);
    case MatrixFault::Kind::RowLeft:
      break;
  }
  return HasRowLeft(fault.line);
}

Expected<MatrixValue, std::string> ReadMatrixFrom(int descriptor, std::string_view name) {
  const auto bytes = ReadBytes(descriptor);
  if (!bytes) return MatrixCannotBeLoaded(name, Narrow(bytes.error()));
  auto matrix = ReadMatrixFile(*bytes);
  if (!matrix) return MatrixCannotBeLoaded(name, ReasonOf(matrix.error()));
  return *std::move(matrix);
}

Expected<MatrixValue, std::string> LoadMatrix(const std::string& path) {
  if (path == kStandardInput) {
    TellAwaitedText(kMatrixAwaited);
    return ReadMatrixFrom(STDIN_FILENO, kStandardInputName);
  }
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (file.IsOpen()) return ReadMatrixFrom(file.Number(), path);
  return MatrixCannotBeLoaded(path, Narrow(WhyUnreadable(errno)));
}

}  // namespace

Expected<Matrices, std::string> LoadMatrices(const CommandLine& line) {
  const auto& paths = line.options.matrixFiles;
  const auto fromInput = std::count(paths.begin(), paths.end(), kStandardInput);
  if (fromInput > 1) return std::string(kInputIsOneMatrix);
  if (fromInput == 1 && line.items.empty()) return std::string(kInputIsAMatrix);
  Matrices matrices;
  for (std::size_t i = 0; i < matrices.size(); ++i) {
    if (paths[i].empty()) {
      // Expressions that name a matrix with an empty cell fail, so the size of this one never
      // shows.
      matrices[i] = MatrixOfSize(1, 1);
      continue;
    }
    auto loaded = LoadMatrix(paths[i]);
    if (!loaded) return std::move(loaded).error();
    matrices[i] = *std::move(loaded);
  }
  return matrices;
}

}  // namespace kav
