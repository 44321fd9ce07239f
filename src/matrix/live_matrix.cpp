#include "matrix/live_matrix.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "macros/live_result.h"
#include "matrix/intermediate_matrices.h"
#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_line.h"

namespace kav {
namespace {

/// A few matrices, in memory.
class FewMatrices final : public IntermediateMatrices {
 public:
  explicit FewMatrices(int most) : most_(most) {}

  bool Write(const std::string& name, const MatrixValue& matrix) override {
    if (++written_ > most_) return false;
    matrices_[name] = matrix;
    return true;
  }
  std::optional<MatrixValue> Read(const std::string& name) const override {
    const auto found = matrices_.find(name);
    return found == matrices_.end() ? std::nullopt : std::optional(found->second);
  }
  void Remove(const std::string& name) override { matrices_.erase(name); }

 private:
  std::map<std::string, MatrixValue> matrices_;
  int most_;
  int written_ = 0;
};

/// Whether each exponent is a number of at most `most` digits.
bool HasSmallExponents(std::u16string_view line, std::size_t most) {
  for (std::size_t at = line.find(u'^'); at != line.npos; at = line.find(u'^', at + 1)) {
    std::u16string_view rest = line.substr(at + 1);
    rest.remove_prefix(std::min(rest.find_first_not_of(u' '), rest.size()));
    std::size_t digits = 0;
    while (digits < rest.size() && IsDigit(rest[digits])) ++digits;
    const bool goesOn = digits < rest.size() && (rest[digits] == u'.' || IsLetter(rest[digits]));
    if (digits == 0 || digits > most || goesOn) return false;
  }
  return true;
}

std::u16string OrderText(const MatrixValue& matrix) {
  return Widen(PrintInteger(matrix.rows) + 'x' + PrintInteger(matrix.columns));
}

}  // namespace

std::optional<std::u16string> LiveOrder(std::u16string_view line, const Matrices& matrices,
                                        std::optional<double> answer, const MatrixEffort& effort) {
  if (line.size() > kLongestLiveLine || !HasSmallExponents(line, effort.exponentDigits)) {
    return std::nullopt;
  }
  if (FirstInvalidMatrix(line, matrices)) return std::nullopt;
  FewMatrices intermediate(effort.intermediates);
  const auto result = MatrixEvaluator(matrices, intermediate).Evaluate(Narrow(line), answer);
  return result ? std::optional(OrderText(*result)) : std::nullopt;
}

}  // namespace kav
