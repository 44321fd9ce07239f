// The window that starts the calculator and changes its screens.
#pragma once

#include <QWidget>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/window_place.h"
#include "common/expected.h"
#include "screens/widgets/app_events.h"
#include "screens/widgets/frame.h"

namespace kav {

/// A screen that can be opened.
struct ScreenKind {
  ScreenMode mode;
  std::u16string_view caption;
  std::unique_ptr<QWidget> (*make)(Frame& frame);
};

/// Every screen and every dialog that this build has.
std::span<const ScreenKind> AllScreens();
ScreenDialogs AllDialogs(SettingsStore& store);

/// What the frame asks of the application.
struct FrameHooks {
  std::function<void()> saveStore;  ///< see Frame::SaveStore
  std::function<void()> started;    ///< the first screen is shown
  std::function<void()> finished;   ///< the last screen is gone: the application may end
  PastLines* past = nullptr;        ///< see Frame::Past; null: nothing keeps them
  // See UserSettingsStore.
  std::function<Expected<std::string, std::u16string>()> exportSettings;
  std::function<std::optional<std::u16string>(const std::string& toml)> importSettings;
};

/// Shows "Loading..." until the first screen is shown, and then hides. There are two slots for
/// screens, so that a new screen is there before the old one goes. `store` and `screens` must
/// outlive the frame. A mode without a screen shows the first of `screens`.
class FrameWindow final : public QWidget, public Frame {
 public:
  FrameWindow(SettingsStore& store, std::span<const ScreenKind> screens, ScreenDialogs dialogs,
              FrameHooks hooks);
  /// Closes what is still open and stores the mode and the window's place.
  ~FrameWindow() override;

  /// Opens the screen of the current mode, then closes the old one. A mode without a screen stays
  /// the current one and is stored, for a build that has its screen.
  void SwitchMode();

  /// Restores the shown screen and brings it, or the dialog over it, to the front. Does nothing
  /// before the first screen.
  void ComeToFront();

  /// Null before the first screen is there and after the last is gone.
  QWidget* Shown() const { return slots_[activeSlot_].get(); }

  SettingsStore& Store() override { return store_; }
  PastLines& Past() override { return hooks_.past != nullptr ? *hooks_.past : Frame::Past(); }
  const ScreenDialogs& Dialogs() const override { return dialogs_; }
  std::vector<ScreenChoice> ScreensBeside(ScreenMode own) const override;
  void SaveStore() override { hooks_.saveStore(); }
  void ExportSettings(QWidget* parent) override;
  void ImportSettings(QWidget* parent) override;
  void ChangeMode(ScreenMode mode) override;
  void Exit() override;
  void ScaleText(TextStep step) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void PrepareScreen();
  void StartSoon();
  void Start();
  void KeepFrameOnDesktop();
  void GrowWindow(int percent);
  const ScreenKind& KindOf(std::int32_t mode) const;
  void KeepPlace();
  void TakeImported(const std::string& toml);
  void CloseScreen(std::size_t slot);
  void CloseAll();

  SettingsStore& store_;
  std::span<const ScreenKind> screens_;
  ScreenDialogs dialogs_;
  FrameHooks hooks_;
  WindowPlace place_;
  QSize first_;  ///< of the window that grew last, before it did
  QSize grown_;  ///< what it grew to
  std::int32_t mode_;
  AppEvents events_;
  std::unique_ptr<QWidget> prepared_;  ///< made, but not shown yet
  std::array<std::unique_ptr<QWidget>, 2> slots_;
  std::size_t activeSlot_ = 0;
  bool isStarted_ = false;
  bool isFramed_ = false;  ///< the desktop's frame around the first screen was seen to
  bool isQuitting_ = false;
};

}  // namespace kav
