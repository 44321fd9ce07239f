// The text files that lists are saved to and loaded from.
#pragma once

#include <string>
#include <variant>

#include "statistics/data_list.h"
#include "statistics/work_progress.h"

namespace kav {

/// The rows of the file `path` (UTF-8).
std::variant<DataList, WorkFailed, WorkCancelled> LoadDataFile(const std::string& path,
                                                               DataShape shape,
                                                               const WorkProgress& progress);

struct DataSaved {};

/// Makes the rows of `list` the content of the file `path` (UTF-8). If that fails or is cancelled,
/// the file stays as it was.
std::variant<DataSaved, WorkFailed, WorkCancelled> SaveDataFile(const std::string& path,
                                                                const DataList& list,
                                                                const WorkProgress& progress);

}  // namespace kav
