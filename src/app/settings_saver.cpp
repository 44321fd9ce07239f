#include "app/settings_saver.h"

#include <thread>
#include <utility>

namespace kav {
namespace {

using Clock = std::chrono::steady_clock;

// Other programs hold the file for some milliseconds.
constexpr std::chrono::milliseconds kBetweenLastTries{5};

}  // namespace

SettingsSaver::SettingsSaver(UserSettingsStore& store, std::function<bool()> tell)
    : SettingsSaver(store, std::move(tell), Pace()) {}

SettingsSaver::SettingsSaver(UserSettingsStore& store, std::function<bool()> tell, Pace pace)
    : store_(store), tell_(std::move(tell)), pace_(pace) {
  timer_.setInterval(pace_.again);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Try(); });
}

void SettingsSaver::Save() {
  if (!timer_.isActive()) firstTry_ = Clock::now();
  Try();
}

void SettingsSaver::Tell() {
  if (!tell_()) GoOn();
}

void SettingsSaver::Try() {
  const bool isFree = store_.TrySave();
  if (isFree) {
    firstTry_ = Clock::now();
    isToldBusy_ = false;
  } else if (Clock::now() - firstTry_ >= pace_.tellAfter && !std::exchange(isToldBusy_, true)) {
    store_.TellBusy();
  }
  // Before the box that tells waits for its answer, so that the tries go on meanwhile.
  isFree ? timer_.stop() : GoOn();
  Tell();
}

void SettingsSaver::GoOn() {
  if (!timer_.isActive()) timer_.start();
}

void SettingsSaver::SaveAtLast() {
  const auto deadline = Clock::now() + pace_.atEnd;
  while (!store_.TrySave()) {
    if (Clock::now() >= deadline) return store_.TellBusy();
    std::this_thread::sleep_for(kBetweenLastTries);
  }
}

}  // namespace kav
