// The least that a start can cost: a dialog of the toolkit with as many buttons and lines as the
// scientific screen, and nothing else.
#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

int main(int argc, char** argv) {
  constexpr int kButtons = 60;
  constexpr int kColumns = 5;
  QApplication application(argc, argv);
  QDialog dialog;
  QGridLayout grid(&dialog);
  for (int row = 0; row < 2; ++row) grid.addWidget(new QLineEdit, row, 0, 1, kColumns);
  for (int i = 0; i < kButtons; ++i) {
    grid.addWidget(new QPushButton(QString::number(i)), 2 + i / kColumns, i % kColumns);
  }
  dialog.resize(360, 560);
  dialog.show();
  return QApplication::exec();
}
