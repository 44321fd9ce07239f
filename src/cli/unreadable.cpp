#include "cli/unreadable.h"

#include "cli/answer_writer.h"
#include "common/number_text.h"
#include "settings/file_error.h"
#include "settings/file_error_texts.h"

namespace kav {

std::u16string WhyUnreadable(int error) {
  const FileError kind = FileErrorFromErrno(error);
  // It gathers what has no remedy of its own: there the system knows better.
  if (kind == FileError::Device) return Widen(SystemReason(error));
  return std::u16string(ReasonOfReading(kind));
}

}  // namespace kav
