// A screen with a line for expressions, a line for results, and keys.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "line/history_walk.h"
#include "line/line_mend.h"
#include "screens/widgets/expression_view.h"
#include "screens/widgets/key_screen.h"
#include "screens/widgets/line_view.h"
#include "screens/widgets/past_side.h"
#include "screens/widgets/result_uses.h"
#include "settings/past_lines.h"

namespace kav {

/// Enter, Esc and "=" of the keyboard press keys of the screen, whatever has the focus. Everything
/// else that is typed goes to the expression line, unless the focused widget uses it. The Edit menu
/// works on the result if some of it is selected, else on the line. Up walks from the ends of the
/// line through earlier ones, Down back, and then into the keys. Ctrl+H shows and hides the
/// history.
class LineScreen : public KeyScreen {
 public:
  LineScreen(Frame& frame, QSize size, std::vector<KeySpot> keys, PastRoom room,
             SideNeighbour neighbour);
  ~LineScreen() override;

  /// What the history leaves of the window.
  QRect ScreenPart() const override { return past_.ScreenPart(); }

 protected:
  ExpressionView& Line() const { return *line_; }
  ResultView& Result() const { return *result_; }

  void Edit(EditCommand command) override;
  bool CanEdit(EditCommand command) const override;

  /// Paints both lines, and only then has `save` write the model into the store, the store to disk,
  /// and `evaluated` kept in the history.
  void SaveAfterPainting(const std::function<void()>& save,
                         const std::optional<PastLine>& evaluated);

  // The history of all sessions.
  std::vector<MenuEntry> MoreToEdit() override;
  /// To be called when everything else on the `body` above the menus is laid out.
  void LayOutHistory(const QRect& body);
  /// Writes into the line what the user chose there.
  virtual void TakePast(const PastLine& past, PastPart part) = 0;
  /// Hides and shows what the history lies over, where it has no room beside the screen.
  virtual void Cover();
  virtual void Uncover();

  /// What the line comes to, before it is answered; nullopt to show nothing.
  virtual std::optional<std::u16string> LiveResult(std::u16string_view line) const = 0;
  /// Shows that. For whatever changes it besides the text of the line.
  void ShowLive();

  /// The screen's own lines, the newest last: Up leads to them if none of all sessions are kept.
  virtual HistoryWalk::Lines EarlierLines() const = 0;
  /// "=" is pressed: a walk through those is over, and so is what an earlier "=" led to.
  void FinishLine();

  /// Marks where the last "=" failed, and offers the mend, if there is one, below the result, once
  /// for each "="; nullopt if it did not fail.
  void ShowFault(const std::optional<LineFault>& fault);
  /// The user took the offer.
  virtual void OnMend() = 0;

  /// The result in plain digits, and the line with it; nullopt if there is none to copy.
  virtual std::optional<std::u16string> CopiedResult() const = 0;
  virtual std::optional<std::u16string> CopiedLine() const = 0;
  void CopyLine() override;
  ResultEntries EntriesOfResult() override;
  /// Marks that the memory register is not 0: shows `value`, unless it is empty.
  void ShowMemory(const std::u16string& value);
  void LayOutResult(const QRect& place);

  // The keys that the keyboard presses.
  virtual void OnEquals() = 0;
  virtual void OnClear() = 0;
  /// Has the model take a character that is typed, if it is an operator that goes on with the line.
  /// False: it is a character like others.
  virtual bool OnOperator(char16_t typed) = 0;

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool PressKeyOf(const QKeyEvent& event);
  void PressInLine(QKeyEvent& event);
  HistoryWalk::Lines LinesToWalk();
  bool TakeOperator(const QString& typed);
  void KeepEvaluated();
  QLineEdit& Edited() const;

  ExpressionView* line_;
  ResultView* result_;
  HistoryWalk walk_;
  std::optional<std::u16string> offered_;
  PastRoom room_;
  PastSide past_;
  std::vector<PastLine> evaluated_;  ///< not kept in the history yet
  ResultUses* uses_;
  MemoryMark* memory_ = nullptr;  ///< made when it is first shown
};

}  // namespace kav
