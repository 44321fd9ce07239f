#include "cli/build_note.h"

#include "cli/this_build.h"

namespace kav {

std::string_view BuildNote() {
  constexpr bool kIsCommitKnown = sizeof(KAV_COMMIT) > 1;
  return kIsCommitKnown ? "commit " KAV_COMMIT ", " KAV_BUILD : KAV_BUILD;
}

}  // namespace kav
