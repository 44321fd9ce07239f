// One running calculator per user: who comes second calls the first to the foreground and ends.
#pragma once

#include <chrono>
#include <string>

#include "settings/file_descriptor.h"

namespace kav {

/// The folder where copies of one user's program meet: `runtimeFolder` (that of the user's login)
/// where it is the user's own and nobody else has access, else "kav-calculator-UID" in
/// `temporaryFolder`, made where it is missing. Not open where that is not the user's own either.
FileDescriptor OpenMeetingFolder(const std::string& runtimeFolder,
                                 const std::string& temporaryFolder);

/// A process's claim to be the one that runs. It ends with the process, however that ends.
class SingleInstance {
 public:
  enum class Outcome {
    First,   ///< nobody else runs
    Called,  ///< another one runs and was called, or is too busy to say so
    Alone,   ///< there is no place to meet: this process knows of no others
  };

  /// Meets the others in `folder`, and waits at most `patience` for the one that runs to answer.
  static SingleInstance Claim(FileDescriptor folder, std::chrono::milliseconds patience);

  Outcome Result() const { return outcome_; }

  /// Becomes readable when a call arrives; -1 where none can arrive.
  int CallSocket() const { return socket_.Number(); }

  /// Answers the calls that have arrived; whether there were any.
  bool TakeCalls() const;

  /// Takes no more calls: who calls from now on waits for this process to end and then is the
  /// first.
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
