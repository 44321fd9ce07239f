#include "cli/descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <initializer_list>

namespace kav {

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
