// The scientific screen: the widgets that show its model.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "scientific/scientific_model.h"
#include "screens/widgets/line_screen.h"

namespace kav {

/// Loads the settings when it is made and writes them into the frame's store when it is destroyed;
/// after each "=" it also has them saved to disk, when the answer has been painted.
class CScientificDlg final : public KeyScreenOf<Key, ScientificModel, LineScreen> {
 public:
  explicit CScientificDlg(Frame& frame);
  ~CScientificDlg() override;

  void Keep() override { model_.Save(); }

 private:
  void OnKey(Key key) override;
  void OnEquals() override { OnKey(Key::Equals); }
  void OnMend() override;
  void OnClear() override { OnKey(Key::Clear); }
  bool OnOperator(char16_t typed) override;
  void TakeLine() override;
  void Refresh() override;
  std::optional<MenuPlace> PlaceOfMenu(int key) const override {
    return MenuPlaceOf(static_cast<Key>(key));
  }
  void LayOut(const DialogUnits& units) override;
  std::optional<std::u16string> LiveResult(std::u16string_view line) const override {
    return model_.LiveResult(line);
  }
  HistoryWalk::Lines EarlierLines() const override { return TypedLines(model_.PastLines()); }
  void TakePast(const PastLine& past, PastPart part) override;
  std::optional<std::u16string> CopiedResult() const override { return model_.CopiedResult(); }
  std::optional<std::u16string> CopiedLine() const override { return model_.CopiedLine(); }

  void CarryOut(const ScientificRequest& request) override;

  ScientificModel model_;
};

/// The scientific screen as the frame's table of screens has it.
std::unique_ptr<QWidget> MakeScientificScreen(Frame& frame);

}  // namespace kav
