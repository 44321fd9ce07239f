// The sums over a file of data, read in blocks: it may have any number of rows.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "cli/unusual_lines.h"
#include "statistics/data_list.h"
#include "statistics/one_variable.h"
#include "statistics/regression.h"

namespace kav {

/// What the rows are, and which curve is fitted to them.
struct DataKind {
  DataShape shape;
  RegressionModel model;
};

/// The sums over some rows, which are not kept.
class Summary {
 public:
  explicit Summary(DataKind kind) : shape_(kind.shape), sums_(kind.model) {}

  /// Adds rows up to the first that makes the total no 32-bit integer.
  TakenRows Add(std::span<const DataRow> rows);

  std::int64_t Rows() const { return rows_; }
  std::int32_t Total() const { return total_; }
  const WeightedSums& X() const { return shape_ == DataShape::OneVariable ? x_ : sums_.X(); }
  const RegressionSums& Sums() const { return sums_; }

  /// Whether a text was not a number from its start to its end since this was last asked.
  bool TakeUnusual() { return std::exchange(isUnusual_, false); }

 private:
  DataShape shape_;
  bool isUnusual_ = false;
  std::int32_t total_ = 0;
  std::int64_t rows_ = 0;
  WeightedSums x_;  ///< of one variable; two have theirs in sums_
  RegressionSums sums_;
};

/// What a file of data adds up to.
struct DataSums {
  Summary summary;
  std::vector<Remark> remarks;  ///< about unusual lines
  std::u16string fault;         ///< why the sums are not to be used, a clause; empty if they are
};

/// Sums up what is left of the open file `descriptor`. Takes the memory of a block.
DataSums SumUp(int descriptor, DataKind kind);

}  // namespace kav
