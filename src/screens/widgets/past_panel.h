// The history of all sessions beside or over a screen.
#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

#include "line/past_lines_model.h"
#include "screens/widgets/past_rows_view.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace kav {

/// What the panel asks of its screen.
struct PastPanelHooks {
  std::function<void(const PastLine& past, PastPart part)> take;  ///< into the line
  std::function<void()> close;                                    ///< the panel itself
  std::function<void()> leave;    ///< Esc: the keyboard goes back, or the panel closes
  std::function<void()> changed;  ///< what is kept has changed
};

/// A field to search with, the rows that were found, and what can be done with the one that is
/// marked. Up and Down mark another row from the field, too; Enter inserts its line, Shift+Enter
/// its answer.
class PastPanel final : public QWidget {
 public:
  PastPanel(QWidget* screen, PastLinesModel past, PastPanelHooks hooks);

  /// Shows what was added meanwhile; the marked row stays the marked one.
  void Load();
  /// Letters are `pixels` high, or lower if the buttons and a row would have no room.
  void LayOut(const QRect& place, int pixels);
  /// Gives the keyboard to the field.
  void Enter();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  QPushButton* AddButton(std::u16string_view caption, std::u16string_view tip,
                         const std::function<void()>& press);
  void AddParts();
  bool PressInField(const QKeyEvent& key);
  bool PressInList(const QKeyEvent& key);
  bool PressAnywhere(const QKeyEvent& key);
  void Refresh();
  void Search();
  void Take(int row, PastPart part);
  void Delete();
  void Undo();
  void Clear();
  void Keep();

  PastLinesModel past_;
  PastPanelHooks hooks_;
  PastRows* rows_;
  QLineEdit* search_;
  PastRowsView* list_;
  QPushButton* line_ = nullptr;
  QPushButton* answer_ = nullptr;
  QPushButton* delete_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* clear_ = nullptr;
  QPushButton* close_ = nullptr;
  QCheckBox* keep_;
};

}  // namespace kav
