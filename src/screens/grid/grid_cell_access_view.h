// A cell of a grid as screen readers find it.
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>

#include "grid/grid_model.h"

namespace kav {

class CGridCtrl;

/// Invalid as long as its cell is not there. Headers are cells without a place in the table.
class GridCellAccess final : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface {
 public:
  GridCellAccess(CGridCtrl& grid, GridCell cell);

  GridCell Cell() const { return cell_; }

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;

  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override;
  int rowIndex() const override;
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  CGridCtrl* Grid() const;
  bool IsHeader() const;

  QPointer<QWidget> widget_;
  GridCell cell_;
};

}  // namespace kav
