#include "app/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <thread>
#include <utility>

#include "common/number_text.h"

namespace kav {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr const char* kLockName = "kav-calculator.lock";
constexpr const char* kSocketName = "kav-calculator.socket";

FileDescriptor OpenIfPrivate(const std::string& path) {
  FileDescriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat facts {};
  if (!folder.IsOpen() || fstat(folder.Number(), &facts) != 0) return FileDescriptor(-1);
  const bool isPrivate = facts.st_uid == geteuid() && (facts.st_mode & (S_IRWXG | S_IRWXO)) == 0;
  return isPrivate ? std::move(folder) : FileDescriptor(-1);
}

FileDescriptor OpenLock(const FileDescriptor& folder) {
  FileDescriptor lock(openat(folder.Number(), kLockName, O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC,
                             S_IRUSR | S_IWUSR));
  // The sticky bit keeps those who tidy up old runtime files away from it: a second file of the
  // same name would be a second lock.
  if (lock.IsOpen()) fchmod(lock.Number(), S_IRUSR | S_IWUSR | S_ISVTX);
  return lock;
}

FileDescriptor NewSocket() {
  return FileDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// The socket in `folder`, reached by the open folder itself: its path may be longer than an
/// address has room for, and may have come to name something else.
sockaddr_un AddressIn(const FileDescriptor& folder) {
  const std::string path =
      "/proc/self/fd/" + PrintInteger(folder.Number()) + "/" + std::string(kSocketName);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::copy_n(path.begin(), std::min(path.size(), sizeof address.sun_path - 1), address.sun_path);
  return address;
}

const sockaddr* Plain(const sockaddr_un& address) {
  return reinterpret_cast<const sockaddr*>(&address);
}

/// The socket on which the first one is called. Removes what a killed process has left there.
FileDescriptor Listen(const FileDescriptor& folder) {
  constexpr int kWaitingCalls = 16;
  unlinkat(folder.Number(), kSocketName, 0);
  FileDescriptor listener = NewSocket();
  const sockaddr_un address = AddressIn(folder);
  const bool listens = listener.IsOpen() &&
                       bind(listener.Number(), Plain(address), sizeof address) == 0 &&
                       listen(listener.Number(), kWaitingCalls) == 0;
  return listens ? std::move(listener) : FileDescriptor(-1);
}

enum class Answer { Yes, Gone, NoneYet };

/// Calls the one that runs and waits until `deadline` for its answer, a byte.
Answer Call(const FileDescriptor& folder, steady_clock::time_point deadline) {
  const FileDescriptor caller = NewSocket();
  const sockaddr_un address = AddressIn(folder);
  if (connect(caller.Number(), Plain(address), sizeof address) != 0) return Answer::Gone;
  const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
  pollfd wait{caller.Number(), POLLIN, 0};
  if (poll(&wait, 1, std::max(0, static_cast<int>(left.count()))) == 0) return Answer::NoneYet;
  char byte = 0;
  return recv(caller.Number(), &byte, 1, 0) == 1 ? Answer::Yes : Answer::Gone;
}

bool IsOurs(const FileDescriptor& call) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return getsockopt(call.Number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
         peer.uid == geteuid();
}

}  // namespace

FileDescriptor OpenMeetingFolder(const std::string& runtimeFolder,
                                 const std::string& temporaryFolder) {
  if (FileDescriptor folder = OpenIfPrivate(runtimeFolder); folder.IsOpen()) return folder;
  const std::string path = temporaryFolder + "/kav-calculator-" + PrintInteger(geteuid());
  mkdir(path.c_str(), S_IRWXU);
  return OpenIfPrivate(path);
}

SingleInstance::SingleInstance(Outcome outcome, FileDescriptor folder, FileDescriptor lock,
                               FileDescriptor listener)
    : outcome_(outcome),
      folder_(std::move(folder)),
      lock_(std::move(lock)),
      socket_(std::move(listener)) {}

SingleInstance SingleInstance::Over() {
  return {Outcome::Called, FileDescriptor(-1), FileDescriptor(-1), FileDescriptor(-1)};
}

SingleInstance SingleInstance::Claim(FileDescriptor folder, milliseconds patience) {
  constexpr milliseconds kPause(5);
  const auto deadline = steady_clock::now() + patience;
  const auto ended = [](Outcome outcome) {
    return SingleInstance(outcome, FileDescriptor(-1), FileDescriptor(-1), FileDescriptor(-1));
  };
  FileDescriptor lock = folder.IsOpen() ? OpenLock(folder) : FileDescriptor(-1);
  if (!lock.IsOpen()) return ended(Outcome::Alone);
  while (flock(lock.Number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return ended(Outcome::Alone);
    // The other may just have started, and not listen yet, or be about to end, and not any more.
    const Answer answer = Call(folder, deadline);
    if (answer == Answer::Yes) return ended(Outcome::Called);
    if (answer == Answer::NoneYet || steady_clock::now() >= deadline) return ended(Outcome::Busy);
    std::this_thread::sleep_for(kPause);
  }
  FileDescriptor listener = Listen(folder);
  return {Outcome::First, std::move(folder), std::move(lock), std::move(listener)};
}

bool SingleInstance::TakeCalls() const {
  bool wasCalled = false;
  while (true) {
    const FileDescriptor call(
        accept4(socket_.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!call.IsOpen()) return wasCalled;
    if (!IsOurs(call)) continue;
    wasCalled = true;
    send(call.Number(), "!", 1, MSG_NOSIGNAL);
  }
}

void SingleInstance::StopListening() {
  if (!socket_.IsOpen()) return;
  unlinkat(folder_.Number(), kSocketName, 0);
  socket_ = FileDescriptor(-1);
}

}  // namespace kav
