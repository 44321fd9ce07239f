#include "settings/file_descriptor.h"

#include <poll.h>

#include <cerrno>
#include <csignal>

namespace kav {
namespace {

constexpr int kForever = -1;

/// Whether the call that left `error` should be made again: at once after a signal, after a wait
/// for `event` if the file was set not to wait by itself.
bool ShouldRetry(int error, int descriptor, short event) {
  if (error == EAGAIN || error == EWOULDBLOCK) {
    pollfd wait{descriptor, event, 0};
    poll(&wait, 1, kForever);
    return true;
  }
  return error == EINTR;
}

}  // namespace

void SurviveSizeLimit() {
  static_cast<void>(signal(SIGXFSZ, SIG_IGN));
}

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

Expected<std::size_t, int> ReadSome(int descriptor, char* data, std::size_t size) {
  for (;;) {
    const ssize_t got = read(descriptor, data, size);
    if (got >= 0) return static_cast<std::size_t>(got);
    if (!ShouldRetry(errno, descriptor, POLLIN)) return errno;
  }
}

}  // namespace kav
