#include "screens/matrix/matrix_size_dlg.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "matrix/matrix_texts.h"
#include "matrix/matrix_value.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// A list of the sizes that there are. Digits choose the size that they write: by itself the
/// toolkit takes 1 for the beginning of 10.
class SizeList final : public QComboBox {
 public:
  SizeList(std::u16string_view name, int chosen) {
    setAccessibleName(ToQt(name));
    for (int size = 1; size <= kLargestMatrix; ++size) addItem(QString::number(size));
    setCurrentIndex(chosen - 1);
    setMaxVisibleItems(kLargestMatrix);
    installEventFilter(this);
    view()->installEventFilter(this);
  }

  int Chosen() const { return currentIndex() + 1; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QComboBox::eventFilter(watched, event);
    const QString text = static_cast<const QKeyEvent&>(*event).text();
    if (text.size() != 1 || !text.front().isDigit()) return QComboBox::eventFilter(watched, event);
    const bool goesOn =
        lastDigit_.isValid() && lastDigit_.elapsed() < QApplication::keyboardInputInterval();
    lastDigit_.start();
    typed_ = goesOn && findText(typed_ + text) >= 0 ? typed_ + text : text;
    const int place = findText(typed_);
    if (place < 0) return true;
    // The open list chooses only when it closes.
    if (watched == this) {
      setCurrentIndex(place);
    } else {
      view()->setCurrentIndex(model()->index(place, 0));
    }
    return true;
  }

  QString typed_;
  QElapsedTimer lastDigit_;
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
  all->addLayout(buttons);
  TakeOnlyNeededHeight();
}

}  // namespace

std::optional<MatrixSize> RunMatrixSize(QWidget* parent, MatrixSize now) {
  CMatrixSizeDlg dlg(parent, now);
  if (!dlg.RunModal()) return std::nullopt;
  return dlg.Chosen();
}

}  // namespace kav
