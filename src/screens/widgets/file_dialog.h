// The toolkit's dialog for files, made to fit a screen.
#pragma once

class QFileDialog;
class QWidget;

namespace kav {

/// Lays `dialog`, which is not shown yet, over the screen of `opener`, with letters as large as the
/// screen's or as small as its width asks for. Leaves it to the desktop's own dialog where there is
/// one and the desktop has room for it.
void FitOverScreen(QFileDialog& dialog, const QWidget& opener);

}  // namespace kav
