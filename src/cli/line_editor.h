// Lines typed at a terminal, with editing, history and completion.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "cli/completion.h"

// Types of the library for line editing, whose header only the source includes.
struct editline;
struct history;

namespace kav {

/// Reads lines from the terminal at standard input and output. Texts are UTF-8 in every locale.
class LineEditor {
 public:
  /// Called when the Tab key is pressed. `before` is the line up to the caret.
  using Completer = std::function<Completion(std::string_view before)>;

  explicit LineEditor(Completer completer);
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
  struct Closer {
    void operator()(editline* editor) const;
    void operator()(struct history* lines) const;
  };
  static LineEditor& Of(editline* editor);
  static char* PromptText(editline* editor);
  static unsigned char OnTab(editline* editor, int key);
  static unsigned char OnGiveUp(editline* editor, int key);
  static unsigned char OnEnd(editline* editor, int key);
  static unsigned char OnStop(editline* editor, int key);
  unsigned char CompleteAtCaret();

  Completer completer_;
  std::unique_ptr<struct history, Closer> history_;
  std::unique_ptr<editline, Closer> editor_;
  std::string prompt_;
  bool isGivenUp_ = false;
};

}  // namespace kav
