// The lines of all sessions as the prompt goes back to them and adds to them.
#pragma once

#include <cstdint>
#include <string>

#include "cli/answer_writer.h"
#include "cli/line_editor.h"
#include "cli/options.h"
#include "settings/settings_store.h"
#include "store/past_lines_file.h"

namespace kav {

/// All that it is made with must outlive it.
class PromptLines {
 public:
  PromptLines(LineEditor& editor, const SettingsStore& store, const Options& options);

  /// Hands the editor what was added since the last call, here, in a window or at another prompt.
  void TakeOver();
  /// Adds `line`, which was answered with `answer`. If it cannot be kept, tells so, once.
  void Add(const std::string& line, const Answer& answer);

 private:
  LineEditor& editor_;
  const SettingsStore& store_;
  const Options& options_;
  PastLinesFile file_;
  std::int64_t newest_ = 0;  ///< the id of the newest line that the editor has
};

}  // namespace kav
