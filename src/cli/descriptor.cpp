#include "cli/descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <initializer_list>

#include "settings/file_descriptor.h"

namespace kav {

Expected<std::string, int> ReadAll(int descriptor, std::size_t most) {
  constexpr std::size_t kFirst = 4096;
  std::string bytes;
  std::size_t filled = 0;
  while (filled < most) {
    bytes.resize(std::min(std::max(2 * filled, kFirst), most));
    const auto got = ReadSome(descriptor, &bytes[filled], bytes.size() - filled);
    if (!got) return got.error();
    filled += *got;
    if (*got == 0) break;
  }
  bytes.resize(filled);
  return bytes;
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
