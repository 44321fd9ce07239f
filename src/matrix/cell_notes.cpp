#include "matrix/cell_notes.h"

#include <cstddef>

#include "common/number_text.h"
#include "engine/calc_modes.h"
#include "line/shown_number.h"
#include "matrix/cell_number.h"
#include "matrix/cell_table_text.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_texts.h"

namespace kav {
namespace {

/// More would fill the screen.
constexpr std::size_t kMostLines = 3;
constexpr std::size_t kShownOfCell = 30;

}  // namespace

std::u16string CellNotes::NewsOf(std::u16string_view line, const Matrices& matrices,
                                 DisplayFormat format) {
  std::u16string news;
  std::size_t count = 0;
  const auto note = [&](std::size_t index, int row, int column) {
    const std::u16string& text = matrices[index].At(row, column);
    std::u16string& told = told_[index].At(row, column);
    if (text.empty() || text == told || IsNumberText(text)) return;
    told = text;
    if (++count > kMostLines) return;
    if (!news.empty()) news += u'\n';
    news +=
        CellCountsAs(kMatrixNames[index], PlaceOfCell(row, column), Shortened(text, kShownOfCell),
                     ShownNumber(ReadCell(text), format, BaseMode::Decimal));
  };
  for (std::size_t index = 0; index < matrices.size(); ++index) {
    if (!NamesMatrix(line, static_cast<int>(index))) continue;
    for (int row = 0; row < matrices[index].rows; ++row) {
      for (int column = 0; column < matrices[index].columns; ++column) note(index, row, column);
    }
  }
  if (count > kMostLines) news += u'\n' + MoreCellsAreNoNumbers(count - kMostLines);
  return news;
}

}  // namespace kav
