// One run of the calculator: its settings, its frame, and what reaches it from outside.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>
#include <string>

#include "app/frame_window.h"
#include "app/single_instance.h"
#include "settings/file_descriptor.h"
#include "store/user_settings_store.h"

namespace kav {

/// Keeps the signals that ask a program to end from ending it at once, in this thread and in those
/// that it starts from now on: a session reads them and ends in good order. To be called before the
/// toolkit starts threads of its own, any of which a signal may reach.
void HoldEndSignals();

/// Lasts from the first sight of the frame to the end of its last screen, and then ends the event
/// loop, as do the signals by which a desktop or a terminal asks a program to end. Saves the
/// settings at its end, however that comes about, and tells the user once what is wrong with them.
class Session {
 public:
  /// Settings are kept in the file `settingsPath`. Calls that `instance` takes bring the screen to
  /// the foreground.
  Session(SingleInstance instance, std::string settingsPath);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

 private:
  void WatchSignals();
  void WatchCalls();
  void Started();
  void Save();
  void End();
  void TellNotices();

  UserSettingsStore store_;
  SingleInstance instance_;
  FileDescriptor endSignals_;
  QObject context_;  // what is still to be called is forgotten with it
  std::unique_ptr<QSocketNotifier> ending_;
  std::unique_ptr<QSocketNotifier> calls_;
  std::unique_ptr<FrameWindow> frame_;
};

}  // namespace kav
