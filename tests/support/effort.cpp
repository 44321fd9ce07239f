#include "support/effort.h"

namespace kav::test {

bool IsFast() {
#if defined(NDEBUG)
  return true;
#else
  return false;
#endif
}

}  // namespace kav::test
