// Whether every text that a window shows has the room that it needs, by the font that it is drawn
// in.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeView>
#include <cmath>

#include "screens/grid/grid_ctrl.h"
#include "screens/widgets/key_sheet.h"
#include "screens/widgets/key_view.h"

namespace kav::test {

/// A caption as it is shown: behind "&" stands the letter of a shortcut.
inline QString WithoutMark(QString caption) {
  return caption.replace("&&", QChar(u'\1')).remove('&').replace(QChar(u'\1'), "&");
}

/// The style's options of a part, which widgets make for themselves only.
template <class Option, class Widget>
Option OptionsOf(const Widget& widget) {
  struct Open : Widget {
    using Widget::initStyleOption;
  };
  Option option;
  (widget.*(&Open::initStyleOption))(&option);
  return option;
}

/// Measures the texts of a window part by part.
class TextRoom {
 public:
  explicit TextRoom(const QWidget& window) : window_(window) {
    for (const auto* part : window.findChildren<QWidget*>()) {
      if (part->isVisible() && part->window() == &window) Measure(*part);
    }
  }

 private:
  void Expect(const QWidget& part, const QString& text, QSizeF room,
              std::optional<QFont> font = std::nullopt) const {
    if (text.isEmpty()) return;
    const QFontMetricsF metrics(font.value_or(part.font()));
    const QRectF ink = metrics.tightBoundingRect(text);
    // A part of a pixel that is missing is not seen.
    EXPECT_LE(metrics.horizontalAdvance(text), room.width() + 0.5)
        << NameOf(part, text) << " is cut";
    EXPECT_LE(ink.height(), room.height() + 0.5) << NameOf(part, text) << " is lower than its text";
  }

  std::string NameOf(const QWidget& part, const QString& text) const {
    const QSize size = window_.size();
    return "\"" + text.toStdString() + "\" of " + part.metaObject()->className() + " " +
           part.accessibleName().toStdString() + " in " + window_.windowTitle().toStdString() +
           " " + std::to_string(size.width()) + "x" + std::to_string(size.height());
  }

  void Measure(const QWidget& part) const {
    if (const auto* key = dynamic_cast<const KeyView*>(&part)) return MeasureKey(*key);
    if (const auto* grid = dynamic_cast<const CGridCtrl*>(&part)) return MeasureGrid(*grid);
    if (const auto* label = qobject_cast<const QLabel*>(&part)) return MeasureLabel(*label);
    if (const auto* button = qobject_cast<const QPushButton*>(&part)) return MeasureButton(*button);
    if (const auto* box = qobject_cast<const QCheckBox*>(&part)) {
      return MeasureMarked(*box, QStyle::SE_CheckBoxContents);
    }
    if (const auto* box = qobject_cast<const QRadioButton*>(&part)) {
      return MeasureMarked(*box, QStyle::SE_RadioButtonContents);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&part)) return MeasureCombo(*combo);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&part)) return MeasureTabs(*tabs);
    if (const auto* bar = qobject_cast<const QMenuBar*>(&part)) return MeasureMenus(*bar);
    if (const auto* box = qobject_cast<const QGroupBox*>(&part)) return MeasureGroup(*box);
    if (const auto* bar = qobject_cast<const QProgressBar*>(&part)) {
      return Expect(*bar, bar->text(), bar->size());
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(&part)) return MeasureLine(*line);
    // A grid paints its headers itself.
    if (dynamic_cast<const CGridCtrl*>(part.parentWidget()) != nullptr) return;
    if (const auto* view = qobject_cast<const QHeaderView*>(&part)) return MeasureHeader(*view);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&part))
      return MeasureItems(*view);
    if (qobject_cast<const QToolButton*>(&part) != nullptr) {
      ADD_FAILURE() << NameOf(part, "") << " stands for what has no room";
    }
  }

  void MeasureKey(const KeyView& key) const {
    Expect(key, WithoutMark(key.text()), key.size() - QSize(2, 2), key.TextFont());
  }

  void MeasureButton(const QPushButton& button) const {
    Expect(button, WithoutMark(button.text()), button.size() - QSize(4, 2));
  }

  void MeasureLabel(const QLabel& label) const {
    const QRectF room = QRectF(label.contentsRect()).adjusted(std::max(label.indent(), 0), 0, 0, 0);
    const QString text = label.buddy() != nullptr ? WithoutMark(label.text()) : label.text();
    if (text.isEmpty()) return;
    const int wrap = label.wordWrap() ? int(Qt::TextWordWrap) : 0;
    const QRectF lines =
        QFontMetricsF(label.font()).boundingRect(QRectF(0, 0, room.width(), 1e6), wrap, text);
    EXPECT_LE(lines.width(), room.width() + 1) << NameOf(label, text) << " is cut";
    EXPECT_LE(lines.height(), room.height() + 1)
        << NameOf(label, text) << " is lower than its text";
  }

  template <class Button>
  void MeasureMarked(const Button& button, QStyle::SubElement contents) const {
    const auto option = OptionsOf<QStyleOptionButton>(button);
    const QRect room = button.style()->subElementRect(contents, &option, &button);
    Expect(button, WithoutMark(button.text()), room.size());
    EXPECT_TRUE(button.rect().contains(room)) << NameOf(button, button.text());
  }

  void MeasureCombo(const QComboBox& combo) const {
    const auto option = OptionsOf<QStyleOptionComboBox>(combo);
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    for (int i = 0; i < combo.count(); ++i) {
      Expect(combo, combo.itemText(i), field.size() - QSize(1, 0));
    }
    EXPECT_GE(combo.height(), combo.fontMetrics().height()) << NameOf(combo, combo.currentText());
  }

  void MeasureTabs(const QTabBar& tabs) const {
    struct Open : QTabBar {
      using QTabBar::initStyleOption;
    };
    for (int i = 0; i < tabs.count(); ++i) {
      const QRect tab = tabs.tabRect(i);
      QStyleOptionTab option;
      (tabs.*(&Open::initStyleOption))(&option, i);
      const QRect room = tabs.style()->subElementRect(QStyle::SE_TabBarTabText, &option, &tabs);
      Expect(tabs, WithoutMark(tabs.tabText(i)), room.size());
      EXPECT_TRUE(tabs.rect().contains(tab))
          << NameOf(tabs, tabs.tabText(i)) << " is not seen whole";
    }
  }

  void MeasureMenus(const QMenuBar& bar) const {
    for (const QAction* action : bar.actions()) {
      const QRect area = bar.actionGeometry(const_cast<QAction*>(action));
      Expect(bar, WithoutMark(action->text()), area.size());
      EXPECT_TRUE(bar.rect().contains(area)) << NameOf(bar, action->text()) << " is not seen whole";
    }
  }

  void MeasureGroup(const QGroupBox& box) const { Expect(box, box.title(), box.size()); }

  void MeasureLine(const QLineEdit& line) const {
    QStyleOptionFrame option;
    option.initFrom(&line);
    const QRect contents = line.style()
                               ->subElementRect(QStyle::SE_LineEditContents, &option, &line)
                               .marginsRemoved(line.textMargins());
    constexpr int kFreeOnEachSide = 2;  // as every field has it
    const QSize room = contents.size() - QSize(2 * kFreeOnEachSide, 0);
    EXPECT_GE(line.height(), line.fontMetrics().height()) << NameOf(line, line.text());
    // What is typed may be longer than any field, and moves within it.
    Expect(line, line.text().isEmpty() ? line.placeholderText() : QString("0"), room);
  }

  void MeasureHeader(const QHeaderView& header) const {
    if (header.orientation() == Qt::Vertical) return;
    const int margin = header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    for (int i = 0; i < header.count(); ++i) {
      const QString text = header.model()->headerData(i, Qt::Horizontal).toString();
      Expect(header, text, QSizeF(header.sectionSize(i) - 2 * margin, header.height()));
    }
  }

  /// Cells whose texts are broken between words.
  void MeasureWrapped(const QTableWidget& table) const {
    const int margin =
        table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1;
    const QFontMetricsF metrics(table.font());
    for (int row = 0; row < table.rowCount(); ++row) {
      for (int column = 0; column < table.columnCount(); ++column) {
        const QString text = table.item(row, column)->text();
        const QRect area = table.visualItemRect(table.item(row, column));
        EXPECT_LE(area.right(), table.viewport()->width()) << NameOf(table, text) << " is cut";
        const QRectF room(0, 0, area.width() - 2 * margin, area.height());
        const QSizeF needed = metrics.boundingRect(room, Qt::TextWordWrap, text).size();
        EXPECT_LE(needed.width(), room.width() + 0.5) << NameOf(table, text) << " is cut";
        EXPECT_LE(needed.height(), room.height() + 0.5) << NameOf(table, text) << " is cut";
      }
    }
  }

  void MeasureItems(const QAbstractItemView& view) const {
    const auto* table = qobject_cast<const QTableWidget*>(&view);
    if (table != nullptr) return MeasureWrapped(*table);
    // A tree of texts in several lines shows whole what is selected in it beside it.
    if (qobject_cast<const QTreeView*>(&view) != nullptr) return;
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    const QAbstractItemModel& items = *view.model();
    for (int row = 0; row < std::min(items.rowCount(), kMostRows); ++row) {
      for (int column = 0; column < items.columnCount(); ++column) {
        const QModelIndex index = items.index(row, column);
        // Names of the user's own may be longer than any place, and are cut visibly.
        if (index.data().toString().size() > kLongestText) continue;
        // What a row is longer than the view has to be scrolled to.
        const QRect area = view.visualRect(index);
        const int width = std::min(area.width(), view.viewport()->width() - area.left());
        Expect(view, index.data().toString(), QSizeF(width - 2 * margin, area.height()));
      }
    }
  }

  void MeasureGrid(const CGridCtrl& grid) const {
    const GridModel& cells = grid.Model();
    for (int row = 0; row < cells.RowCount(); ++row) {
      for (int column = 0; column < cells.ColumnCount(); ++column) {
        if (!cells.IsFixed({row, column})) continue;
        const QString text =
            QString::fromStdU16String(std::u16string(cells.GetItemText(row, column)));
        Expect(grid, text, grid.CellArea({row, column}).size() - QSize(3, 1));
      }
    }
  }

  static constexpr int kMostRows = 100;
  static constexpr int kLongestText = 100;

  const QWidget& window_;
};

}  // namespace kav::test
