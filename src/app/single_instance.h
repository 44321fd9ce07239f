// One running calculator per user: a second one calls the first to the foreground and ends.
#pragma once

#include <chrono>
#include <string>

#include "settings/file_descriptor.h"

namespace kav {

/// The folder in which the copies of one user's program meet. It is `runtimeFolder` (that of the
/// user's login) if the user owns it and nobody else has access; else "kav-calculator-UID" in
/// `temporaryFolder`, made if it is missing. Not open if the user does not own that one either.
FileDescriptor OpenMeetingFolder(const std::string& runtimeFolder,
                                 const std::string& temporaryFolder);

/// A process's claim to be the one that runs. It ends with the process, however that ends.
class SingleInstance {
 public:
  enum class Outcome {
    First,   ///< nobody else runs
    Called,  ///< another one runs and was called
    Busy,    ///< another one runs and does not answer; it is called once it has time
    Alone,   ///< there is no place to meet: this process knows of no others
  };

  /// Meets the others in `folder`, and waits at most `patience` for the one that runs to answer.
  static SingleInstance Claim(FileDescriptor folder, std::chrono::milliseconds patience);

  /// The claim of a process that has nothing left to do: Called.
  static SingleInstance Over();

  Outcome Result() const { return outcome_; }

  /// Becomes readable when a call arrives; -1 if none can arrive.
  int CallSocket() const { return socket_.Number(); }

  /// Answers the calls that have arrived. Returns whether there were any.
  bool TakeCalls() const;

  /// Takes no more calls. A copy that calls from now on waits for this process to end and then is
  /// the first.
  void StopListening();

 private:
  SingleInstance(Outcome outcome, FileDescriptor folder, FileDescriptor lock,
                 FileDescriptor listener);

  Outcome outcome_;
  FileDescriptor folder_;
  FileDescriptor lock_;
  FileDescriptor socket_;
};

}  // namespace kav
