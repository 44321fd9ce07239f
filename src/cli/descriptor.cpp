#include "cli/descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace kav {
namespace {

constexpr int kForever = -1;

/// Whether to repeat the call that failed with `error`: after a signal, at once; if the file was
/// set not to wait by itself, after a wait for `event`.
bool ShouldRetry(int error, int descriptor, short event) {
  if (error == EAGAIN || error == EWOULDBLOCK) {
    pollfd wait{descriptor, event, 0};
    poll(&wait, 1, kForever);
    return true;
  }
  return error == EINTR;
}

}  // namespace

int WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (!ShouldRetry(errno, descriptor, POLLOUT)) {
      return errno;
    }
  }
  return 0;
}

ReadBlock ReadSome(int descriptor, char* data, std::size_t size) {
  for (;;) {
    const ssize_t got = read(descriptor, data, size);
    if (got >= 0) return {static_cast<std::size_t>(got), 0};
    if (!ShouldRetry(errno, descriptor, POLLIN)) return {0, errno};
  }
}

bool WouldWait(int descriptor) {
  pollfd ready{descriptor, POLLIN, 0};
  return poll(&ready, 1, 0) == 0;
}

void ReserveStandardFiles() {
  // For writing if it is to be read and the other way round: using it fails as on a closed file.
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const int way = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (fcntl(descriptor, F_GETFD) < 0) static_cast<void>(open("/dev/null", way));
  }
}

}  // namespace kav
