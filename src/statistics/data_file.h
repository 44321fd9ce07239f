// The text files that lists are saved to and loaded from.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "statistics/data_list.h"

namespace kav {

/// Asked every few milliseconds of a long work, with the part of it that is done (0 to 1); false
/// gives it up.
using WorkProgress = std::function<bool(double done)>;

struct WorkCancelled {};
struct WorkFailed {
  std::u16string text;  ///< what happened, where, and what to do
};

/// The rows of the file `path` (UTF-8), or why there are none.
std::variant<DataList, WorkFailed, WorkCancelled> LoadDataFile(const std::string& path,
                                                               DataShape shape,
                                                               const WorkProgress& progress);

/// Makes the rows of `list` the content of the file `path`; where that cannot be, the file stays as
/// it was.
std::optional<std::variant<WorkFailed, WorkCancelled>> SaveDataFile(const std::string& path,
                                                                    const DataList& list,
                                                                    const WorkProgress& progress);

}  // namespace kav
