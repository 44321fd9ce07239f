// Matrix expressions of any text. What comes before a byte of 0 is [M1]. The evaluation ends with a
// matrix or a message, with the same one every time, and leaves no file behind.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_file.h"
#include "matrix/matrix_line.h"
#include "matrix/temporary_matrices.h"

namespace {

using kav::CalcResult;
using kav::MatrixValue;

void Check(bool holds) {
  if (!holds) std::abort();
}

/// A folder of this run alone, for the files of intermediate results.
class Folder {
 public:
  Folder() {
    path_ = std::filesystem::temp_directory_path() / "kav-fuzz-XXXXXX";
    Check(mkdtemp(path_.data()) != nullptr);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  const std::string& Path() const { return path_; }

  bool HasFiles() const {
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      if (!std::filesystem::is_empty(entry)) return true;
    }
    return false;
  }

 private:
  std::string path_;
};

kav::Matrices MatricesWith(std::string_view first) {
  kav::Matrices matrices;
  const auto read = [](std::string_view text) {
    return kav::ReadMatrix(text).value_or(MatrixValue{});
  };
  matrices[0] = read(first.empty() ? "[2*2]\n1\t2\n3\t4\n" : first);
  matrices[1] = read("[2*2]\n0.5\t-1\n1e3\t0\n");
  matrices[2] = read("[2*3]\n1\t2\t3\n4\t5\t1e308\n");
  matrices[3] = read("[2*1]\n5\n6\n");
  return matrices;
}

/// What came of `text`.
void CheckResult(std::string_view text, const CalcResult<MatrixValue>& result) {
  if (!result) {
    Check(!result.error().message.empty());
    const auto place = result.error().place;
    if (place) Check(place->position <= text.size());
    if (place) Check(place->length <= text.size() - place->position);
    return;
  }
  Check(result->rows >= 0 && result->rows <= kav::kLargestMatrix);
  Check(result->columns >= 0 && result->columns <= kav::kLargestMatrix);
}

bool AreSame(const CalcResult<MatrixValue>& a, const CalcResult<MatrixValue>& b) {
  if (a && b) return kav::SameMatrix(*a, *b);
  return !a && !b && a.error() == b.error();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  static kav::TemporaryMatrices files(folder.Path());
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t end = input.find('\0');
  const std::string_view text = end == input.npos ? input : input.substr(end + 1);
  const kav::Matrices matrices = MatricesWith(end == input.npos ? "" : input.substr(0, end));
  const std::u16string line = kav::Widen(text);
  static_cast<void>(kav::IsMatrixExpression(line));
  static_cast<void>(kav::FirstInvalidMatrix(line, matrices));
  kav::MatrixEvaluator evaluator(matrices, files);
  const auto result = evaluator.Evaluate(text);
  CheckResult(text, result);
  Check(AreSame(result, evaluator.Evaluate(text)));
  Check(!folder.HasFiles());
  return 0;
}
