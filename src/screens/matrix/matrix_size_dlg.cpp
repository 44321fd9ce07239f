#include "screens/matrix/matrix_size_dlg.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "matrix/matrix_texts.h"
#include "matrix/matrix_value.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// A list of the sizes that there are.
class SizeList final : public QComboBox {
 public:
  SizeList(std::u16string_view name, int chosen) {
    setAccessibleName(ToQt(name));
    for (int size = 1; size <= kLargestMatrix; ++size) addItem(QString::number(size));
    setCurrentIndex(chosen - 1);
    setMaxVisibleItems(kLargestMatrix);
  }

  int Chosen() const { return currentIndex() + 1; }
};

class CMatrixSizeDlg final : public Dialog {
 public:
  CMatrixSizeDlg(QWidget* parent, MatrixSize now);

  MatrixSize Chosen() const { return {rows_->Chosen(), columns_->Chosen()}; }

 private:
  SizeList* rows_;
  SizeList* columns_;
};

CMatrixSizeDlg::CMatrixSizeDlg(QWidget* parent, MatrixSize now)
    : Dialog(parent, kMatrixSizeTitle),
      rows_(new SizeList(kRowsName, now.rows)),
      columns_(new SizeList(kColumnsName, now.columns)) {
  auto* lists = new QFormLayout;
  lists->addRow(ToQt(kRowsName), rows_);
  lists->addRow(ToQt(kColumnsName), columns_);
  auto* ok = new DialogButton(kOkCaption);
  auto* cancel = new DialogButton(kCancelCaption);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* all = new QVBoxLayout(this);
  all->addWidget(new QLabel(ToQt(kMatrixSizeTitle)));
  all->addLayout(lists);
  all->addStretch(1);
  all->addLayout(buttons);
}

}  // namespace

std::optional<MatrixSize> RunMatrixSize(QWidget* parent, MatrixSize now) {
  CMatrixSizeDlg dlg(parent, now);
  if (!dlg.RunModal()) return std::nullopt;
  return dlg.Chosen();
}

}  // namespace kav
