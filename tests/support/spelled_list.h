// Lists of data as texts to compare.
#pragma once

#include <string>

#include "statistics/data_list.h"

namespace kav::test {

/// All rows as "X Y Cnt;...", or "X Count;...".
inline std::string Spelled(const DataList& list) {
  std::string text;
  for (std::size_t row = 0; row < list.RowCount(); ++row) {
    text.append(list.ValueText(row, 0)) += ' ';
    if (list.Shape() == DataShape::TwoVariables) text.append(list.ValueText(row, 1)) += ' ';
    text += list.CountText(row) + ";";
  }
  return text;
}

}  // namespace kav::test
