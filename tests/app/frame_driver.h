// A frame whose screens note what happens to them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/frame_window.h"
#include "screens/screen_driver.h"
#include "settings/keys.h"

namespace kav::test {

/// What happened to screens, in order: "make 1", "show 1", "close 1", "destroy 1".
inline std::vector<std::string> events;

class FakeScreen final : public QWidget {
 public:
  explicit FakeScreen(ScreenMode mode) : number_(std::to_string(static_cast<int>(mode))) {
    setObjectName(QString::fromStdString(number_));
    events.push_back("make " + number_);
  }
  ~FakeScreen() override { events.push_back("destroy " + number_); }

 private:
  void showEvent(QShowEvent*) override { events.push_back("show " + number_); }
  void closeEvent(QCloseEvent*) override { events.push_back("close " + number_); }

  std::string number_;
};

template <ScreenMode kMode>
std::unique_ptr<QWidget> MakeFake(Frame&) {
  return std::make_unique<FakeScreen>(kMode);
}

inline const std::vector<ScreenKind> kAllFive{
    {ScreenMode::Scientific, u"Scientific Calculator", MakeFake<ScreenMode::Scientific>},
    {ScreenMode::Plotter, u"Function Plotter", MakeFake<ScreenMode::Plotter>},
    {ScreenMode::OneVariable, u"1-Var Statistics", MakeFake<ScreenMode::OneVariable>},
    {ScreenMode::TwoVariable, u"2-Var Statistics", MakeFake<ScreenMode::TwoVariable>},
    {ScreenMode::Matrix, u"Matrix Calculator", MakeFake<ScreenMode::Matrix>},
};

/// Whether it may be left.
inline bool mayLeave = true;

/// Notes when its user leaves it.
class AskingScreen final : public Screen {
 public:
  explicit AskingScreen(Frame& frame) : Screen(frame, {100, 100}) {
    AddFileMenu({});
    AddModeMenu(ScreenMode::Scientific);
  }
  bool MayLeave(LeaveReason reason) override {
    events.emplace_back(reason == LeaveReason::Ending ? "ending" : "switching");
    return mayLeave;
  }

 private:
  void LayOut(const DialogUnits&) override {}
};

inline const std::vector<ScreenKind> kOneThatAsks{
    {ScreenMode::Scientific, u"Scientific Calculator",
     [](Frame& frame) -> std::unique_ptr<QWidget> {
       return std::make_unique<AskingScreen>(frame);
     }},
    {ScreenMode::Matrix, u"Matrix Calculator", MakeFake<ScreenMode::Matrix>},
};

/// With a frame and what its hooks were asked for.
class FrameOfScreens : public testing::Test {
 protected:
  FrameOfScreens() {
    events.clear();
    mayLeave = true;
  }

  /// Makes the frame and waits for the first screen.
  void Start(const std::vector<ScreenKind>& screens = kAllFive) {
    MakeFrame(screens);
    frame_->show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return started_ > 0; }));
  }
  void MakeFrame(const std::vector<ScreenKind>& screens = kAllFive) {
    frame_.reset();
    started_ = 0;
    screens_ = screens;
    frame_ = std::make_unique<FrameWindow>(store_, screens_, ScreenDialogs{},
                                           FrameHooks{[this] { ++saves_; },
                                                      [this] { ++started_; },
                                                      [this] { ++finished_; },
                                                      nullptr,
                                                      {},
                                                      {}});
  }
  std::string ShownName() const {
    return frame_->Shown() != nullptr ? frame_->Shown()->objectName().toStdString() : "none";
  }
  void ChangeTo(ScreenMode mode) {
    frame_->ChangeMode(mode);
    QCoreApplication::processEvents();
  }

  MemorySettingsStore store_;
  std::vector<ScreenKind> screens_;
  std::unique_ptr<FrameWindow> frame_;
  int saves_ = 0;
  int started_ = 0;
  int finished_ = 0;
};

}  // namespace kav::test
