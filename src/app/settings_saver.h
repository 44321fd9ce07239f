// Saving settings while the user goes on working.
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

#include "store/user_settings_store.h"

namespace kav {

/// Saves the settings of a window. If another program keeps their file, the window does not wait:
/// the settings are saved as soon as it is free.
class SettingsSaver {
 public:
  struct Pace {
    std::chrono::milliseconds again{100};       ///< between two tries
    std::chrono::milliseconds tellAfter{2000};  ///< of tries in vain
    std::chrono::milliseconds atEnd{2000};      ///< the longest wait of SaveAtLast
  };

  /// `store` must outlive the saver. `tell` tells the user the notices of the store, and answers
  /// whether all are told; if not, it is called again soon.
  SettingsSaver(UserSettingsStore& store, std::function<bool()> tell);
  SettingsSaver(UserSettingsStore& store, std::function<bool()> tell, Pace pace);

  /// Saves now, or later if another program keeps the file.
  void Save();
  /// Tells what the store has to tell, now or as soon as the user can be told.
  void Tell();
  /// Saves before it returns, for the end of the program; waits for another program, but not for
  /// long. Then it is told, for what is not saved is lost.
  void SaveAtLast();

 private:
  void Try();
  void GoOn();

  UserSettingsStore& store_;
  std::function<bool()> tell_;
  Pace pace_;
  QTimer timer_;
  std::chrono::steady_clock::time_point firstTry_;  ///< of those in vain
  bool isToldBusy_ = false;
};

}  // namespace kav
