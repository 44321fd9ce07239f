// What is asked before matrices go with the program.
#pragma once

#include <functional>
#include <utility>

#include "matrix/matrix_board.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/frame.h"

class QWidget;

namespace kav {

inline constexpr FileKind kMatrixFiles{u"TXT(*.txt)", u"txt"};

/// Asks whether to save the matrices of `board` that are in no file, and saves each of them in one;
/// whether the program may end. `shown` is called when another matrix is the shown one.
bool AskToSaveMatrices(QWidget* parent, MatrixBoard& board, const std::function<void()>& shown);

/// The matrices while another screen is shown.
class KeptMatrices final : public KeptWork {
 public:
  explicit KeptMatrices(MatrixBoard kept) : board(std::move(kept)) {}

  bool MayEnd(QWidget* parent) override {
    return AskToSaveMatrices(parent, board, [] {});
  }

  MatrixBoard board;
};

}  // namespace kav
