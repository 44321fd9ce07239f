// Lines typed at a terminal, with editing, history and completion.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "cli/completion.h"
#include "cli/edit_library.h"

namespace kav {

/// Reads lines from the terminal at standard input and output. Texts are UTF-8 in every locale.
/// Without the library for line editing the terminal itself is all that edits them.
class LineEditor {
 public:
  /// Called when the Tab key is pressed. `before` is the line up to the caret.
  using Completer = std::function<Completion(std::string_view before)>;

  explicit LineEditor(Completer completer, const char* library = kEditLibrary);
  LineEditor(const LineEditor&) = delete;
  LineEditor& operator=(const LineEditor&) = delete;
  ~LineEditor();

  enum class Outcome { Line, GivenUp, End };
  /// Prompts for a line with `prompt` and puts it, without its end, into `line`. GivenUp: Ctrl-C
  /// was pressed. End: Ctrl-D was pressed, or the terminal is gone or cannot be set up.
  Outcome Read(std::string& line, std::string_view prompt);

  /// Adds `line` to those that the arrows go back to.
  void Remember(const std::string& line);

 private:
  void SetUp();
  static Outcome ReadPlain(std::string& line, std::string_view prompt);
  // What the library calls. It hands over its editor only, and there is one standard input.
  static char* PromptText(EditLine* editor);
  static unsigned char OnTab(EditLine* editor, int key);
  static unsigned char OnGiveUp(EditLine* editor, int key);
  static unsigned char OnEnd(EditLine* editor, int key);
  static unsigned char OnStop(EditLine* editor, int key);
  unsigned char CompleteAtCaret();

  static LineEditor* active_;  ///< who reads a line now
  Completer completer_;
  std::optional<EditLibrary> library_;
  std::unique_ptr<::History, void (*)(::History*)> history_{nullptr, nullptr};
  std::unique_ptr<EditLine, void (*)(EditLine*)> editor_{nullptr, nullptr};
  std::string prompt_;
  bool isGivenUp_ = false;
};

}  // namespace kav
