#include "grid/grid_model.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <numeric>

namespace kav {

GridModel::GridModel(std::pmr::memory_resource* memory)
    : heights_(memory), widths_(memory), texts_(memory), formats_(memory) {}

bool GridModel::SetRowCount(int count) {
  if (count < fixedRows_ || count > kMostRows) return false;
  return Reshape(count, ColumnCount());
}

bool GridModel::SetColumnCount(int count) {
  if (count < fixedColumns_ || count > kMostRows) return false;
  return Reshape(RowCount(), count);
}

bool GridModel::SetFixedRowCount(int count) {
  if (count < 0 || count > RowCount()) return false;
  fixedRows_ = count;
  return true;
}

bool GridModel::SetFixedColumnCount(int count) {
  if (count < 0 || count > ColumnCount()) return false;
  fixedColumns_ = count;
  return true;
}

bool GridModel::Reshape(int rows, int columns) try {
  const auto height = static_cast<std::size_t>(rows);
  const auto width = static_cast<std::size_t>(columns);
  std::pmr::vector<int> heights(height, kDefaultHeight, heights_.get_allocator());
  std::pmr::vector<int> widths(width, kDefaultWidth, widths_.get_allocator());
  std::pmr::vector<std::pmr::u16string> texts(height * width, texts_.get_allocator());
  std::pmr::vector<GridFormat> formats(height * width, formats_.get_allocator());

  // From here on nothing is allocated, so nothing can fail.
  const int keptRows = std::min(rows, RowCount());
  const int keptColumns = std::min(columns, ColumnCount());
  std::copy_n(heights_.begin(), keptRows, heights.begin());
  std::copy_n(widths_.begin(), keptColumns, widths.begin());
  for (int row = 0; row < keptRows; ++row) {
    const int from = row * ColumnCount();
    const int to = row * columns;
    std::swap_ranges(texts_.begin() + from, texts_.begin() + from + keptColumns,
                     texts.begin() + to);
    std::copy_n(formats_.begin() + from, keptColumns, formats.begin() + to);
  }
  heights_.swap(heights);
  widths_.swap(widths);
  texts_.swap(texts);
  formats_.swap(formats);
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

bool GridModel::SetItem(const GridItem& item) try {
  const GridCell cell{item.row, item.column};
  if (!IsThere(cell) || HasSource(cell)) return false;
  const std::size_t index = Index(item.row, item.column);
  if ((item.mask & GridItem::kText) != 0) {
    std::pmr::u16string text(item.text, texts_.get_allocator());
    texts_[index].swap(text);
  }
  if ((item.mask & GridItem::kFormat) != 0) formats_[index] = item.format;
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

std::u16string_view GridModel::GetItemText(int row, int column) const {
  if (HasSource({row, column})) return source_({row, column}).text;
  if (!IsThere({row, column})) return {};
  return texts_[Index(row, column)];
}

GridFormat GridModel::GetItemFormat(int row, int column) const {
  if (HasSource({row, column})) return source_({row, column}).format;
  return IsThere({row, column}) ? formats_[Index(row, column)] : GridFormat{};
}

bool GridModel::SetColumnWidth(int column, int width) {
  if (column < 0 || column >= ColumnCount()) return false;
  widths_[static_cast<std::size_t>(column)] = std::clamp(width, kLeastWidth, kMostWidth);
  return true;
}

int GridModel::GetColumnWidth(int column) const {
  if (column < 0 || column >= ColumnCount()) return 0;
  return widths_[static_cast<std::size_t>(column)];
}

int GridModel::Left(int column) const {
  return std::accumulate(widths_.begin(), widths_.begin() + column, 0);
}

int GridModel::Top(int row) const {
  return std::accumulate(heights_.begin(), heights_.begin() + row, 0);
}

bool GridModel::IsFixed(GridCell cell) const {
  return IsThere(cell) && (cell.row < fixedRows_ || cell.column < fixedColumns_);
}

GridCell GridModel::Nearest(GridCell cell) const {
  if (fixedRows_ == RowCount() || fixedColumns_ == ColumnCount()) return {};
  return {std::clamp(cell.row, fixedRows_, RowCount() - 1),
          std::clamp(cell.column, fixedColumns_, ColumnCount() - 1)};
}

bool GridModel::IsThere(GridCell cell) const {
  return cell.row >= 0 && cell.row < RowCount() && cell.column >= 0 && cell.column < ColumnCount();
}

std::size_t GridModel::Index(int row, int column) const {
  return static_cast<std::size_t>(row) * widths_.size() + static_cast<std::size_t>(column);
}

}  // namespace kav
