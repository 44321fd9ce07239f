// The scientific screen: its model's picture.
#pragma once

#include <functional>
#include <memory>

#include "scientific/scientific_model.h"
#include "screens/widgets/line_screen.h"

namespace kav {

/// Loads the settings when it is made and writes them into the frame's store when it is destroyed;
/// after each "=" it also has them saved to disk, once the answer is to be seen.
class CScientificDlg final : public LineScreen {
 public:
  explicit CScientificDlg(Frame& frame);
  ~CScientificDlg() override;

 private:
  void OnKey(int key) override;
  void TakeLine() override;
  void Refresh() override;
  void LayOut(const DialogUnits& units) override;

  // What a key asks for.
  void CarryOut(const ScientificRequest& request);
  void Do(const Nothing&) {}
  void Do(const ShowMenu<Key>& request);
  void Do(const OpenMacroEditor& request);
  void Do(const OpenMacroList& request);
  void Do(const OpenConverter& request);
  void Do(const StoreMemoryVariable& request);
  void Do(const RecallMemoryVariable& request);
  void Do(const OpenConstants& request);

  // What is on offer, and how it is offered.
  bool IsOffered(Key key) const;
  Menu OfferedMemoryMenu() const;
  void PopUp(const Menu& items, Key key, const std::function<void(int)>& choose);

  ScientificModel model_;
};

/// The scientific screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame);

}  // namespace kav
