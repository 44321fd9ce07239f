// Keys of the scientific screen, named by their captions and pressed one after the other.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scientific/scientific_model.h"

namespace kav {

/// Presses keys on a screen, which must outlive it.
class KeySequence {
 public:
  explicit KeySequence(ScientificModel& screen) : screen_(screen) {}

  /// Carries out the next step (UTF-8): the caption of a key as shown now, a quoted text to type,
  /// or
  /// "[A:B]" or "[A]" to select. After a key that opens a menu, the step is the text of one of its
  /// items. Returns why the step cannot be carried out; nullopt if it was.
  std::optional<std::string> Take(std::string_view step);

 private:
  std::optional<std::string> TakeItem(std::string_view text);
  std::optional<std::string> Press(std::string_view caption);
  std::optional<std::string> CarryOut(const ScientificRequest& request, std::string_view name);
  void Type(std::string_view text);

  ScientificModel& screen_;
  std::optional<Key> menu_;  ///< the key whose menu is open
};

/// The line with "|" at the caret or "[" and "]" around the selection.
std::string MarkedLine(const ExpressionLine& line);

}  // namespace kav
