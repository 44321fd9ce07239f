// Random expressions against a second evaluation, by recursive descent.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "matrix/matrix_evaluator.h"
#include "matrix/matrix_operations.h"
#include "matrix/temporary_matrices.h"
#include "support/effort.h"
#include "support/matrix_table.h"
#include "support/plain_matrix.h"
#include "support/random.h"
#include "support/temporary_folder.h"

namespace kav::matrix_evaluator_random_test {
namespace {

using test::MatrixOf;
using test::MatrixOfRows;
using test::PlainRows;
using test::RowsOf;
using test::Spelled;

/// nullopt if an operation failed.
using Value = std::optional<std::variant<double, MatrixValue>>;

const double* NumberIn(const Value& value) {
  return std::get_if<double>(&*value);
}
const MatrixValue* MatrixIn(const Value& value) {
  return std::get_if<MatrixValue>(&*value);
}

Value ValueOf(CalcResult<MatrixValue> result) {
  return result ? Value(*std::move(result)) : std::nullopt;
}
Value ValueOf(double number) {
  return std::isfinite(number) ? Value(number) : std::nullopt;
}

/// `change` of each cell, through its text.
template <class Change>
Value ChangedCells(const MatrixValue& matrix, Change change) {
  PlainRows rows = RowsOf(matrix);
  for (auto& row : rows) {
    for (std::string& cell : row) {
      const double value = change(test::PlainNumber(cell));
      if (!std::isfinite(value)) return std::nullopt;
      cell = test::PlainCell(value);
    }
  }
  return MatrixOfRows(rows);
}

bool HaveOneSize(const MatrixValue& a, const MatrixValue& b) {
  return a.rows == b.rows && a.columns == b.columns;
}

Value Sum(const Value& a, const Value& b) {
  if (!a || !b) return std::nullopt;
  if (NumberIn(a) && NumberIn(b)) return ValueOf(*NumberIn(a) + *NumberIn(b));
  if (NumberIn(a)) return Sum(b, a);
  if (NumberIn(b)) return ChangedCells(*MatrixIn(a), [&](double x) { return x + *NumberIn(b); });
  if (!HaveOneSize(*MatrixIn(a), *MatrixIn(b))) return std::nullopt;
  return MatrixOfRows(test::PlainSum(RowsOf(*MatrixIn(a)), RowsOf(*MatrixIn(b))));
}

Value Difference(const Value& a, const Value& b) {
  if (!a || !b) return std::nullopt;
  if (NumberIn(a) && NumberIn(b)) return ValueOf(*NumberIn(a) - *NumberIn(b));
  if (NumberIn(a)) return ChangedCells(*MatrixIn(b), [&](double x) { return *NumberIn(a) - x; });
  if (NumberIn(b)) return ChangedCells(*MatrixIn(a), [&](double x) { return x - *NumberIn(b); });
  if (!HaveOneSize(*MatrixIn(a), *MatrixIn(b))) return std::nullopt;
  return MatrixOfRows(test::PlainDifference(RowsOf(*MatrixIn(a)), RowsOf(*MatrixIn(b))));
}

Value Product(const Value& a, const Value& b) {
  if (!a || !b) return std::nullopt;
  if (NumberIn(a) && NumberIn(b)) return ValueOf(*NumberIn(a) * *NumberIn(b));
  if (NumberIn(a)) return Product(b, a);
  if (NumberIn(b)) return ChangedCells(*MatrixIn(a), [&](double x) { return x * *NumberIn(b); });
  return ValueOf(MultiplyMatrices(*MatrixIn(a), *MatrixIn(b)));
}

Value RaisedTo(const Value& a, const Value& b) {
  if (!a || !b || !NumberIn(b)) return std::nullopt;
  if (NumberIn(a)) return ValueOf(std::pow(*NumberIn(a), *NumberIn(b)));
  return ValueOf(RaiseMatrix(*MatrixIn(a), *NumberIn(b)));
}

Value Negative(const Value& a) {
  if (!a) return std::nullopt;
  if (NumberIn(a)) return Value(-*NumberIn(a));
  return ChangedCells(*MatrixIn(a), [](double x) { return -x; });
}

/// Evaluates well-formed texts in lower case and without blanks.
class Parser {
 public:
  Parser(std::string_view text, const Matrices& matrices) : rest_(text), matrices_(matrices) {}

  Value Sums() {
    Value value = Products();
    while (true) {
      if (Take("+")) {
        value = Sum(value, Products());
      } else if (Take("-")) {
        value = Difference(value, Products());
      } else {
        return value;
      }
    }
  }

 private:
  bool Take(std::string_view word) {
    if (rest_.substr(0, word.size()) != word) return false;
    rest_.remove_prefix(word.size());
    return true;
  }
  Value Products() {
    Value value = Powers();
    while (Take("*")) value = Product(value, Powers());
    return value;
  }
  Value Powers() {
    Value value = Signed();
    while (Take("^")) value = RaisedTo(value, Signed());
    return value;
  }
  Value Signed() {
    if (Take("+")) return Signed();
    if (Take("-")) return Negative(Signed());
    return Primary();
  }
  Value Primary() {
    if (Take("(")) return Closed(Sums());
    constexpr std::string_view kNames[] = {"[m1]", "[m2]", "[m3]", "[m ans]"};
    for (std::size_t i = 0; i < std::size(kNames); ++i) {
      if (Take(kNames[i])) return Value(matrices_[i]);
    }
    if (Take("inverse(")) return Applied(InvertMatrix, Closed(Sums()));
    if (Take("transpose(")) return Applied(TransposeMatrix, Closed(Sums()));
    if (Take("determinant(")) return Applied(MatrixDeterminant, Closed(Sums()));
    if (Take("triangular(")) return Applied(TriangularMatrix, Closed(Sums()));
    if (Take("linearequation(")) return LinearEquation();
    return Number();
  }
  Value LinearEquation() {
    const Value a = Sums();
    Take(",");
    const Value b = Closed(Sums());
    if (!a || !b || NumberIn(a) || NumberIn(b)) return std::nullopt;
    return ValueOf(SolveLinearEquation(*MatrixIn(a), *MatrixIn(b)));
  }
  template <class Function>
  Value Applied(Function function, const Value& argument) {
    if (!argument || NumberIn(argument)) return std::nullopt;
    return ValueOf(CalcResult<MatrixValue>(function(*MatrixIn(argument))));
  }
  Value Closed(Value value) {
    Take(")");
    return value;
  }
  Value Number() {
    const std::size_t end = std::min(rest_.find_first_not_of("0123456789."), rest_.size());
    const double value = ReadLeadingNumber(rest_.substr(0, end));
    rest_.remove_prefix(end);
    return Value(value);
  }

  std::string_view rest_;
  const Matrices& matrices_;
};

/// Writes well-formed expressions.
class Writer {
 public:
  explicit Writer(std::uint64_t seed) : random_(seed) {}

  std::string Write(int depth) {
    std::string text = random_.Below(6) == 0 ? Sign() : "";
    text += Operand(depth);
    for (std::size_t n = random_.Below(4); n > 0; --n) {
      text += random_.Of(std::string_view("++--**^"));
      if (text.back() == '^' && random_.Below(4) != 0) {
        text += random_.Of(std::string_view("0123"));
        continue;
      }
      if (random_.Below(6) == 0) text += Sign();
      text += Operand(depth);
    }
    return text;
  }

 private:
  std::string Sign() { return random_.Below(2) == 0 ? "-" : random_.Below(2) == 0 ? "+" : "--"; }
  std::string Operand(int depth) {
    using std::string_view_literals::operator""sv;
    constexpr std::array kFunctions{""sv,          ""sv,           ""sv,           "inverse"sv,
                                    "transpose"sv, "triangular"sv, "determinant"sv};
    constexpr std::array kValues{"[m1]"sv, "[m2]"sv, "[m3]"sv, "[m1]"sv,
                                 "2"sv,    "0.5"sv,  "3"sv,    "[m ans]"sv};
    if (depth == 0 || random_.Below(3) != 0) return std::string(random_.Of(kValues));
    if (random_.Below(8) == 0) {
      return "linearequation(" + Write(depth - 1) + ",(" + Write(depth - 1) + "))";
    }
    return std::string(random_.Of(kFunctions)) + "(" + Write(depth - 1) + ")";
  }

  test::Random random_;
};

TEST(MatrixEvaluator, RandomExpressionsHaveTheValueOfTheSecondEvaluation) {
  const Matrices matrices{MatrixOf("1 2; 3 5"), MatrixOf("0.5 -1; 2 0.25"), MatrixOf("2 1; 1 1"),
                          MatrixOf("3; -4")};
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  MatrixEvaluator evaluator(matrices, files);
  Writer writer(20);
  int values = 0;
  for (int i = 0; i < test::Tries(4000); ++i) {
    const std::string text = writer.Write(3);
    const auto result = evaluator.Evaluate(text);
    if (!result && result.error().message == "number exceeded length limit.") continue;
    const Value expected = Parser(text, matrices).Sums();
    const bool isMatrix = expected && MatrixIn(expected);
    ASSERT_EQ(static_cast<bool>(result), isMatrix) << text << " gives " << Spelled(result);
    if (!isMatrix) continue;
    ASSERT_EQ(Spelled(result), Spelled(*MatrixIn(expected))) << text;
    ++values;
  }
  EXPECT_GT(values, test::Tries(1000));
}

}  // namespace
}  // namespace kav::matrix_evaluator_random_test
