#include "screens/display/matrix_defaults_view.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <string>
#include <vector>

#include "display/display_settings_texts.h"
#include "screens/widgets/choice_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

template <class Texts>
QComboBox* NewChoice(std::u16string_view name, const Texts& texts) {
  auto* choice = new ChoiceBox(name);
  for (const auto& text : texts) choice->addItem(ToQt(text));
  choice->view();  // is made now, and so gets the look of the dialog
  return choice;
}

std::vector<std::u16string> MatrixSizes() {
  std::vector<std::u16string> sizes;
  for (int size = kMatrixSizeRange.least; size <= kMatrixSizeRange.most; ++size) {
    sizes.push_back(Widen(PrintInteger(size)));
  }
  return sizes;
}

}  // namespace

MatrixDefaultsView::MatrixDefaultsView(DisplaySettingsModel& model)
    : model_(model),
      columnWidth_(new QLineEdit),
      rows_(NewChoice(kDefaultRowsName, MatrixSizes())),
      columns_(NewChoice(kDefaultColumnsName, MatrixSizes())),
      alignment_(NewChoice(kAlignmentCaption, kAlignments)) {
  columnWidth_->setAccessibleName(ToQt(kColumnWidthCaption));
  LayOut();
  Connect();
}

void MatrixDefaultsView::LayOut() {
  auto* parts = new QGridLayout(this);
  parts->setContentsMargins(0, 0, 0, 0);
  parts->addWidget(new QLabel(ToQt(kColumnWidthCaption)), 0, 0);
  parts->addWidget(columnWidth_, 0, 1, 1, 3);
  parts->addWidget(new QLabel(ToQt(kMatrixSizeCaption)), 1, 0);
  parts->addWidget(rows_, 1, 1);
  parts->addWidget(new QLabel(ToQt(kSizeSign)), 1, 2);
  parts->addWidget(columns_, 1, 3);
  parts->addWidget(new QLabel(ToQt(kAlignmentCaption)), 2, 0);
  parts->addWidget(alignment_, 2, 1, 1, 3);
  for (const int column : {1, 3}) parts->setColumnStretch(column, 1);
}

void MatrixDefaultsView::Connect() {
  connect(columnWidth_, &QLineEdit::textChanged, this,
          [this](const QString& text) { model_.TypeColumnWidth(text.toStdU16String()); });
  connect(rows_, &QComboBox::currentIndexChanged, this,
          [this](int index) { model_.ChooseMatrixRows(index + kMatrixSizeRange.least); });
  connect(columns_, &QComboBox::currentIndexChanged, this,
          [this](int index) { model_.ChooseMatrixColumns(index + kMatrixSizeRange.least); });
  connect(alignment_, &QComboBox::currentIndexChanged, this,
          [this](int index) { model_.ChooseAlignment(static_cast<CellAlignment>(index)); });
}

void MatrixDefaultsView::Refresh() {
  // Not the same text again: that would move the caret.
  const QString width = ToQt(model_.ColumnWidth());
  if (columnWidth_->text() != width) columnWidth_->setText(width);
  rows_->setCurrentIndex(model_.MatrixRows() - kMatrixSizeRange.least);
  columns_->setCurrentIndex(model_.MatrixColumns() - kMatrixSizeRange.least);
  alignment_->setCurrentIndex(static_cast<int>(model_.Alignment()));
}

}  // namespace kav
