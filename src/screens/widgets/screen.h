// What every screen has in common: a body in portrait above a menu bar.
#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "line/screen_commands.h"
#include "screens/widgets/frame.h"
#include "screens/widgets/guide_caller.h"
#include "screens/widgets/leaving.h"
#include "screens/widgets/look.h"
#include "screens/widgets/screen_part.h"

class QLineEdit;
class QMenu;

namespace kav {

class BottomMenuBar;

/// An entry of a menu.
struct MenuEntry {
  std::u16string_view text;
  std::function<void()> action;
  QKeySequence shortcut = {};            ///< only shown: the focused line or the screen handles it
  std::function<bool()> isEnabled = {};  ///< asked each time the menu opens; empty: always
  std::u16string_view tip = {};          ///< what it does, if the text does not say it
};

/// What the File menu of a screen does besides "About..." and "Exit".
struct FileCommands {
  std::function<void()> config;
  std::function<void()> editUnits;
  std::function<void()> editMacros;
  std::u16string_view editMacrosEntry;
};

/// What the entries of the Edit menu do.
enum class EditCommand { Undo, Redo, Cut, Copy, Paste, SelectAll };

/// The entries of the Edit menu of a screen with a result, which stand behind "Copy".
using ResultEntries = std::vector<MenuEntry>;

struct EditHooks {
  std::function<void(EditCommand)> edit;
  std::function<bool(EditCommand)> canEdit;  ///< asked each time the menu opens
  std::vector<MenuEntry> more = {};
  ResultEntries results = {};
};

/// Carries the command out on a line, and whether that would change anything.
void EditLine(QLineEdit& line, EditCommand command);
bool CanEditLine(const QLineEdit& line, EditCommand command);

/// Undo or redo, by any of the keys that people know for them.
std::optional<EditCommand> UndoCommandOf(const QKeyEvent& event);

/// A calculating screen, a window of its own. It carries out the commands of ScreenShortcuts.
class Screen : public QWidget, public GuideCaller, public HasScreenPart {
 public:
  /// `size` is that of the body in dialog units; the frame must outlive the screen.
  Screen(Frame& frame, QSize size);

  /// Called before the user goes to another screen or ends the program: asks whether to save.
  /// Answers whether the screen may be left; if not, it stays.
  virtual bool MayLeave(LeaveReason) { return true; }
  /// Writes into the store what the screen leaves behind when it goes.
  virtual void Keep() {}
  /// The same for all that would go: before the end also for what other screens left.
  bool MayBeLeft(LeaveReason reason) {
    return MayLeave(reason) && (reason != LeaveReason::Ending || frame_.MayEnd(this));
  }

  /// Places everything, as after a change of the window's size: for texts of another size.
  void LayOutAll();

  void OpenGuide(QWidget* window, std::optional<GuidePage> page) override;
  void Obey(ScreenCommand command) override;
  QRect ScreenPart() const override { return rect(); }

 protected:
  /// The part of the window that the screen fills, its menu bar included.
  virtual QRect Area() const { return PortraitArea(ScreenPart()); }
  /// Copies the line and its result, on a screen that has them.
  virtual void CopyLine() {}
  /// Called whenever the body has a new size: places everything on it.
  virtual void LayOut(const DialogUnits& units) = 0;

  /// No menu if there are no entries.
  void AddMenu(std::u16string_view title, const std::vector<MenuEntry>& entries);
  void AddFileMenu(const FileCommands& commands);
  void AddEditMenu(const EditHooks& hooks);
  /// The menu of all screens but `own`.
  void AddModeMenu(ScreenMode own);
  void AddHelpMenu();
  /// An empty pop-up menu of the screen's look, deleted once it is closed.
  QMenu* MakePopUp();

  Frame& ParentFrame() const { return frame_; }

  /// Lists what can be pressed here.
  virtual void OpenKeys() {}
  /// The page of the guide that tells about this screen.
  virtual GuidePage Page() const { return GuidePage::Scientific; }

  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void MakeShortcuts();
  void EndProgram();
  void GoTo(ScreenMode mode);
  void ExportSettings();
  void ImportSettings();
  const QWidget* FirstInRound() const;

  Frame& frame_;
  QSize size_;
  BottomMenuBar* menuBar_;
  std::function<void()> config_;
  std::vector<ScreenChoice> others_;
  int turned_ = 0;  ///< of the wheel, towards the next step of the texts' size
};

}  // namespace kav
