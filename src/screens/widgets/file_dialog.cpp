#include "screens/widgets/file_dialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QScreen>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>
#include <algorithm>
#include <array>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"

namespace kav {
namespace {

/// Smaller desktops have no room for dialogs of their own.
constexpr QSize kRoomyDesktop(800, 600);

/// Of the dialog's parts, those that a narrow one has no room for. What they do can be done with
/// the others.
constexpr std::array kLeftOut{"lookInLabel",    "backButton",       "forwardButton",
                              "listModeButton", "detailModeButton", "sidebar"};

/// By the height of the letters.
constexpr double kToolButton = 1.25;

/// Gives the choice of the folder and what stands beside it all the width.
void WidenFolderRow(QGridLayout& parts) {
  constexpr int kLabelColumn = 0;
  QLayoutItem* row = parts.itemAtPosition(0, kLabelColumn + 1);
  if (row == nullptr || row->layout() == nullptr) return;
  parts.removeItem(row);
  parts.addItem(row, 0, kLabelColumn, 1, parts.columnCount());
}

/// Has `field` end where the list above it does, over a column that is empty.
void WidenField(QGridLayout& parts, QWidget* field) {
  const int index = field != nullptr ? parts.indexOf(field) : -1;
  if (index < 0) return;
  int row = 0;
  int column = 0;
  int rows = 0;
  int columns = 0;
  parts.getItemPosition(index, &row, &column, &rows, &columns);
  parts.removeWidget(field);
  parts.addWidget(field, row, column, rows, parts.columnCount() - column);
  parts.setColumnStretch(column, 1);
}

/// Puts the buttons below the fields instead of beside them.
void MoveButtonsBelow(QGridLayout& parts, QDialogButtonBox& buttons) {
  parts.removeWidget(&buttons);
  for (const char* name : {"fileNameEdit", "fileTypeCombo"}) {
    WidenField(parts, parts.parentWidget()->findChild<QWidget*>(name));
  }
  buttons.setOrientation(Qt::Horizontal);
  parts.addWidget(&buttons, parts.rowCount(), 0, 1, parts.columnCount());
}

/// Shows the names of the files one below the other, and nothing else of them.
void ShowNames(QFileDialog& dialog) {
  dialog.setViewMode(QFileDialog::Detail);
  auto* files = dialog.findChild<QTreeView*>("treeView");
  if (files == nullptr) return;
  files->setHeaderHidden(true);
  for (int column = 1; column < files->header()->count(); ++column) {
    files->setColumnHidden(column, true);
  }
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  files->setMinimumHeight(1);
}

void Arrange(QFileDialog& dialog, QGridLayout& parts) {
  dialog.setSizeGripEnabled(false);
  for (const char* name : kLeftOut) {
    if (auto* part = dialog.findChild<QWidget*>(name)) part->hide();
  }
  for (auto* choice : dialog.findChildren<QComboBox*>()) {
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(1);
    choice->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  WidenFolderRow(parts);
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) MoveButtonsBelow(parts, *buttons);
  ShowNames(dialog);
  Wear(dialog, Attire::Window);
  for (auto* part : dialog.findChildren<QWidget*>()) part->setStyle(ScreenStyle());
}

void SetTextHeight(QFileDialog& dialog, QLayout& parts, int pixels) {
  const QFont letters = ScreenFont(pixels);
  const QSize icon(pixels, pixels);
  dialog.setFont(letters);
  for (auto* part : dialog.findChildren<QWidget*>()) part->setFont(letters);
  for (auto* view : dialog.findChildren<QAbstractItemView*>()) view->setIconSize(icon);
  for (auto* button : dialog.findChildren<QToolButton*>()) button->setIconSize(icon);
  for (auto* choice : dialog.findChildren<QComboBox*>()) choice->setIconSize(icon);
  parts.setContentsMargins(pixels / 2, pixels / 2, pixels / 2, pixels / 2);
  for (auto* layout : dialog.findChildren<QLayout*>()) layout->setSpacing(pixels / 3);
  parts.activate();
}

/// The toolkit makes no picture larger than it is, which is too small for a finger.
void GrowPictures(QFileDialog& dialog, int pixels) {
  constexpr QSize kLargest(128, 128);
  for (auto* button : dialog.findChildren<QToolButton*>()) {
    const QPixmap picture = button->icon().pixmap(kLargest);
    if (picture.isNull()) continue;
    const int size = qRound(pixels * dialog.devicePixelRatioF());
    QPixmap grown = picture.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    grown.setDevicePixelRatio(dialog.devicePixelRatioF());
    button->setIcon(grown);
    button->setFixedSize(QSize(pixels, pixels) * kToolButton);
  }
}

}  // namespace

void FitOverScreen(QFileDialog& dialog, const QWidget& opener) {
  const QWidget& window = *opener.window();
  const QSize desktop = window.screen()->availableSize();
  const bool isRoomy =
      desktop.width() >= kRoomyDesktop.width() && desktop.height() >= kRoomyDesktop.height();
  if (!isRoomy) dialog.setOption(QFileDialog::DontUseNativeDialog);
  auto* parts = qobject_cast<QGridLayout*>(dialog.layout());
  if (parts == nullptr) return;  // the desktop's own
  Arrange(dialog, *parts);
  const QRect area = AreaOver(window);
  const auto hasRoom = [&] {
    const QSize needed = parts->totalMinimumSize();
    return needed.width() <= area.width() && needed.height() <= area.height();
  };
  int pixels = std::max(TextPixels(area.height()), 1);
  SetTextHeight(dialog, *parts, pixels);
  while (pixels > 1 && !hasRoom()) SetTextHeight(dialog, *parts, --pixels);
  GrowPictures(dialog, pixels);
  dialog.setGeometry(area);
}

}  // namespace kav
