// One run of the calculator: its settings, its frame, and what reaches it from outside.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <memory>
#include <string>

#include "app/frame_window.h"
#include "app/settings_saver.h"
#include "app/single_instance.h"
#include "settings/file_descriptor.h"
#include "store/past_lines_file.h"
#include "store/user_settings_store.h"

namespace kav {

/// Blocks the signals that ask a program to end, in this thread and in those that it starts from
/// now on: a session reads them and ends in good order. Call it before the toolkit starts threads,
/// any of which may receive a signal.
void HoldEndSignals();

/// While it lives, a signal by which a desktop or a terminal asks a program to end ends the event
/// loop, and what waits in a box before it.
class EndWatch {
 public:
  EndWatch();

 private:
  FileDescriptor signals_;
  QObject context_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

/// Begins with the frame and ends with its last screen, or with a signal that asks
/// the program to end; it then ends the event loop. Always saves the settings at its
/// end, and tells the user what is wrong with them.
class Session {
 public:
  /// Settings are kept in the file `settingsPath`. Calls that `instance` takes bring the screen to
  /// the foreground.
  Session(SingleInstance instance, std::string settingsPath);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

 private:
  void WatchCalls();
  void Save();
  void SavePastLines();
  void SaveAtLast();
  void Started();
  void End();
  bool TellNotices();

  UserSettingsStore store_;
  SettingsSaver saver_;
  PastLinesFile past_;
  QTimer pastTimer_;  ///< until those are saved that another program kept from it
  SingleInstance instance_;
  EndWatch end_;
  QObject context_;  // what is still to be called is forgotten with it
  std::unique_ptr<QSocketNotifier> calls_;
  std::unique_ptr<FrameWindow> frame_;
};

}  // namespace kav
