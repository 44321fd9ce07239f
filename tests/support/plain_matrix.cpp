#include "support/plain_matrix.h"

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <utility>

#include "support/plain_format.h"

namespace kav::test {

MatrixValue MatrixOfRows(const PlainRows& rows) {
  MatrixValue matrix;
  matrix.rows = static_cast<std::int32_t>(rows.size());
  matrix.columns = rows.empty() ? 0 : static_cast<std::int32_t>(rows[0].size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < rows[i].size(); ++j) {
      matrix.cells[i][j].assign(rows[i][j].begin(), rows[i][j].end());
    }
  }
  return matrix;
}

PlainRows RowsOf(const MatrixValue& matrix) {
  PlainRows rows(static_cast<std::size_t>(matrix.rows));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < static_cast<std::size_t>(matrix.columns); ++j) {
      std::string& cell = rows[i].emplace_back();
      for (const char16_t c : matrix.cells[i][j]) cell += static_cast<char>(c);
    }
  }
  return rows;
}

std::string PlainCell(double value) {
  return PlainFormat(value, {DisplayType::FloatingPoint, 12}, BaseMode::Decimal);
}

double PlainNumber(const std::string& cell) {
  return std::strtod(cell.c_str(), nullptr);
}

namespace {

/// Reads and writes the cells of `rows`.
struct Cells {
  PlainRows& rows;

  double Read(std::size_t i, std::size_t j) const { return PlainNumber(rows[i][j]); }
  void Write(std::size_t i, std::size_t j, double value) { rows[i][j] = PlainCell(value); }
};

double Read(const PlainRows& rows, std::size_t i, std::size_t j) {
  return PlainNumber(rows[i][j]);
}

template <class Combine>
PlainRows CellByCell(const PlainRows& a, const PlainRows& b, Combine combine) {
  PlainRows combined = a;
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < a[i].size(); ++j) {
      combined[i][j] = PlainCell(combine(Read(a, i, j), Read(b, i, j)));
    }
  }
  return combined;
}

PlainRows PlainIdentity(std::size_t size) {
  PlainRows identity(size, std::vector<std::string>(size, PlainCell(0)));
  for (std::size_t i = 0; i < size; ++i) identity[i][i] = PlainCell(1);
  return identity;
}

/// Whether it came to its end: a pivot of 0 stops it.
bool PlainGaussJordan(PlainRows& a, PlainRows& b) {
  Cells left{a};
  Cells right{b};
  const std::size_t n = a.size();
  for (std::size_t k = 0; k < n; ++k) {
    const double p = left.Read(k, k);
    if (p == 0) return false;
    const double y = 1 / p;
    for (std::size_t j = k; j < n; ++j) left.Write(k, j, left.Read(k, j) * y);
    for (std::size_t j = 0; j < b[k].size(); ++j) right.Write(k, j, right.Read(k, j) * y);
    for (std::size_t i = 0; i < n; ++i) {
      if (i == k) continue;
      const double f = left.Read(i, k);
      for (std::size_t j = k; j < n; ++j) {
        left.Write(i, j, left.Read(i, j) - left.Read(k, j) * f);
      }
      for (std::size_t j = 0; j < b[i].size(); ++j) {
        right.Write(i, j, right.Read(i, j) - right.Read(k, j) * f);
      }
    }
  }
  return true;
}

}  // namespace

PlainRows PlainSum(const PlainRows& a, const PlainRows& b) {
  return CellByCell(a, b, std::plus());
}

PlainRows PlainDifference(const PlainRows& a, const PlainRows& b) {
  return CellByCell(a, b, std::minus());
}

PlainRows PlainProduct(const PlainRows& a, const PlainRows& b) {
  PlainRows product(a.size(), std::vector<std::string>(b[0].size()));
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < b[0].size(); ++j) {
      double sum = 0;
      for (std::size_t k = 0; k < b.size(); ++k) sum += Read(a, i, k) * Read(b, k, j);
      product[i][j] = PlainCell(sum);
    }
  }
  return product;
}

PlainRows PlainPower(const PlainRows& a, int exponent) {
  if (exponent == 0) return PlainIdentity(a.size());
  PlainRows power = a;
  for (int i = 1; i < exponent; ++i) power = PlainProduct(power, a);
  return power;
}

PlainRows PlainInverse(const PlainRows& a) {
  PlainRows rest = a;
  PlainRows inverse = PlainIdentity(a.size());
  return PlainGaussJordan(rest, inverse) ? inverse : PlainRows();
}

PlainRows PlainTranspose(const PlainRows& a) {
  PlainRows transposed(a[0].size(), std::vector<std::string>(a.size()));
  for (std::size_t i = 0; i < a.size(); ++i) {
    for (std::size_t j = 0; j < a[i].size(); ++j) transposed[j][i] = a[i][j];
  }
  return transposed;
}

PlainRows PlainLinearEquation(const PlainRows& a, const PlainRows& b) {
  PlainRows left = a;
  PlainRows right = b;
  std::vector<std::size_t> table;
  for (std::size_t i = 0; i < a.size(); ++i) table.push_back(i);
  for (std::size_t k = 0; k < a.size(); ++k) {
    std::size_t best = k;
    for (std::size_t i = k; i < a.size(); ++i) {
      if (Read(left, i, k) > Read(left, best, k)) best = i;
    }
    std::swap(left[k], left[best]);
    std::swap(table[k], table[best]);
  }
  for (std::size_t i = 0; i < a.size(); ++i) right[i] = b[table[i]];
  PlainGaussJordan(left, right);
  PlainRows solution = b;
  for (std::size_t i = 0; i < a.size(); ++i) solution[table[i]] = right[i];
  return solution;
}

PlainRows PlainDeterminant(const PlainRows& a) {
  PlainRows upper = a;
  Cells cells{upper};
  double sign = 1;
  for (std::size_t k = 0; k < a.size(); ++k) {
    if (cells.Read(k, k) == 0) {
      std::size_t other = k + 1;
      while (other < a.size() && cells.Read(other, k) == 0) ++other;
      if (other == a.size()) return {{PlainCell(0)}};
      std::swap(upper[k], upper[other]);
      sign = -sign;
    }
    for (std::size_t i = k + 1; i < a.size(); ++i) {
      const double factor = -cells.Read(i, k) / cells.Read(k, k);
      for (std::size_t j = k + 1; j < a.size(); ++j) {
        cells.Write(i, j, cells.Read(i, j) + cells.Read(k, j) * factor);
      }
      cells.Write(i, k, 0);
    }
  }
  double product = 1;
  for (std::size_t k = 0; k < a.size(); ++k) product *= cells.Read(k, k);
  return {{PlainCell(sign * product)}};
}

PlainRows PlainTriangular(const PlainRows& a) {
  PlainRows upper = a;
  Cells cells{upper};
  for (std::size_t k = 0; k < a.size(); ++k) {
    if (cells.Read(k, k) == 0) return {};
  }
  for (std::size_t k = 0; k + 1 < a.size(); ++k) {
    for (std::size_t i = k + 1; i < a.size(); ++i) {
      if (cells.Read(i, k) == 0) continue;
      const double factor = -cells.Read(i, k) / cells.Read(k, k);
      cells.Write(i, k, 0);
      for (std::size_t j = k + 1; j < a.size(); ++j) {
        cells.Write(i, j, cells.Read(k, j) * factor + cells.Read(i, j));
      }
    }
  }
  return upper;
}

}  // namespace kav::test
