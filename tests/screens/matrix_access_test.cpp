// The matrix screen as a screen reader finds it that listened before the screen was made. Whoever
// asks for the grid too early gets another table for good, so this is a file, and with it a
// process, of its own.
#include <gtest/gtest.h>

#include <QAccessible>
#include <string>

#include "screens/grid_access_driver.h"
#include "screens/matrix_driver.h"

namespace kav::test::matrix_access_test {
namespace {

struct Listening {
  Listening() { GridAccessTest::isListening = true; }
  ~Listening() { GridAccessTest::isListening = false; }
};

class MatrixAccessTest : private Listening, public MatrixScreen {};

TEST_F(MatrixAccessTest, TheMatrixIsATableOfItsCells) {
  TypeMatrix("1 2 3;4 5 6;7 8 9");
  QAccessibleTableInterface* table =
      QAccessible::queryAccessibleInterface(&Grid())->tableInterface();
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->rowCount(), 3);
  ASSERT_EQ(table->columnCount(), 3);
  std::string names;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      names += table->cellAt(row, column)->text(QAccessible::Name).toStdString();
    }
  }
  EXPECT_EQ(names, "123456789");
}

}  // namespace
}  // namespace kav::test::matrix_access_test
