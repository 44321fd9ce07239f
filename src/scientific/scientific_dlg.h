// The scientific screen: its model's picture.
#pragma once

#include <functional>
#include <memory>

#include "app/screen.h"
#include "scientific/keypad_view.h"
#include "scientific/line_view.h"
#include "scientific/scientific_model.h"

namespace kav {

/// Loads the settings when it is made and writes them into the frame's store when it is destroyed;
/// after each "=" it also has them saved to disk, once the answer is to be seen.
class CScientificDlg final : public Screen {
 public:
  explicit CScientificDlg(Frame& frame);
  ~CScientificDlg() override;

 private:
  // Taps, and keys of the keyboard.
  void OnKey(Key key);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  // What a key asks for.
  void CarryOut(const KeyRequest& request);
  void Do(const Nothing&) {}
  void Do(const ShowHistoryMenu&);
  void Do(const ShowBaseMenu&);
  void Do(const ShowMemoryMenu&);
  void Do(const OpenMacroEditor& request);
  void Do(const OpenMacroList&);
  void Do(const OpenConverter& request);
  void Do(const StoreMemoryVariable& request);
  void Do(const RecallMemoryVariable&);
  void Do(const OpenConstants&);

  // What is on offer, and how it is offered.
  const Rooms& TheRooms() const { return TheFrame().OpenRooms(); }
  bool IsOffered(Key key) const;
  Menu OfferedMemoryMenu() const;
  void PopUp(const Menu& items, Key key, const std::function<void(int)>& choose);
  void AddMenus();
  std::function<void()> Opening(const std::function<void(QWidget*)>& open);

  // From the widgets to the model, and from the model to the widgets.
  void TakeLine();
  void Refresh();
  void SaveAfterPainting();
  void LayOut(const DialogUnits& units) override;

  ScientificModel model_;
  LineView* line_;
  ResultView* result_;
  KeypadView* keypad_;
};

/// The scientific screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame);

}  // namespace kav
