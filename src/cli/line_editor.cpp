#include "cli/line_editor.h"

#include <histedit.h>
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <cstdio>

#include "cli/cli_texts.h"
#include "cli/visible_text.h"
#include "settings/file_descriptor.h"
#include "settings/past_lines.h"

namespace kav {
namespace {

constexpr const char* kTabFunction = "complete-name";
constexpr const char* kGiveUpFunction = "give-up-line";
constexpr const char* kStopFunction = "stop-program";
constexpr const char* kEndFunction = "end-of-typing";

/// Lists `names`, which must not be empty, below the line being typed.
void List(const std::vector<std::string>& names) {
  std::string text = "\n";
  for (const std::string& name : names) text.append(Visible(name)).append("  ");
  text.replace(text.size() - 2, 2, "\n");
  static_cast<void>(WriteAll(STDOUT_FILENO, text));
}

}  // namespace

void LineEditor::Closer::operator()(editline* editor) const {
  el_end(editor);
}
void LineEditor::Closer::operator()(struct history* lines) const {
  history_end(lines);
}

LineEditor::LineEditor(Completer completer) : completer_(std::move(completer)) {
  // The library decodes typed characters by the locale.
  std::setlocale(LC_CTYPE, "C.UTF-8");
  history_.reset(history_init());
  editor_.reset(el_init(kProgramName.data(), stdin, stdout, stderr));
  if (!history_ || !editor_) return;
  HistEvent event;
  ::history(history_.get(), &event, H_SETSIZE, static_cast<int>(PastLines::kCapacity));
  ::history(history_.get(), &event, H_SETUNIQUE, 1);
  EditLine* editor = editor_.get();
  el_set(editor, EL_CLIENTDATA, this);
  el_set(editor, EL_PROMPT, PromptText);
  el_set(editor, EL_EDITOR, "emacs");
  el_set(editor, EL_SIGNAL, 1);
  el_set(editor, EL_HIST, ::history, history_.get());
  el_set(editor, EL_ADDFN, kTabFunction, "complete the name at the caret", OnTab);
  el_set(editor, EL_BIND, "^I", kTabFunction, nullptr);
  // As keys, not as signals: a signal just before the wait for the next key would be lost.
  el_set(editor, EL_SETTY, "-d", "-isig", nullptr);
  el_set(editor, EL_ADDFN, kGiveUpFunction, "give up the line", OnGiveUp);
  el_set(editor, EL_BIND, "^C", kGiveUpFunction, nullptr);
  el_set(editor, EL_ADDFN, kStopFunction, "stop the program until it is continued", OnStop);
  el_set(editor, EL_BIND, "^Z", kStopFunction, nullptr);
  // What a Ctrl-D becomes that is typed before the terminal is set up for the line.
  el_set(editor, EL_ADDFN, kEndFunction, "end if the line is empty", OnEnd);
  el_set(editor, EL_BIND, "^@", kEndFunction, nullptr);
  el_source(editor, nullptr);
}

LineEditor::~LineEditor() = default;

LineEditor::Outcome LineEditor::Read(std::string& line, std::string_view prompt) {
  if (!history_ || !editor_) return Outcome::End;
  prompt_ = prompt;
  isGivenUp_ = false;
  // Before the prompt appears: until then the terminal collects whole lines, and would lose a
  // Ctrl-D among them.
  el_set(editor_.get(), EL_PREP_TERM, 1);
  int count = 0;
  const char* text = el_gets(editor_.get(), &count);
  if (text == nullptr || count <= 0) {
    static_cast<void>(WriteAll(STDOUT_FILENO, "\n"));
    return isGivenUp_ ? Outcome::GivenUp : Outcome::End;
  }
  line.assign(text, static_cast<std::size_t>(count));
  if (line.back() == '\n') line.pop_back();
  return Outcome::Line;
}

void LineEditor::Remember(const std::string& line) {
  HistEvent event;
  if (history_) ::history(history_.get(), &event, H_ENTER, line.c_str());
}

LineEditor& LineEditor::Of(editline* editor) {
  LineEditor* self = nullptr;
  el_get(editor, EL_CLIENTDATA, &self);
  return *self;
}

char* LineEditor::PromptText(editline* editor) {
  return Of(editor).prompt_.data();
}

unsigned char LineEditor::OnTab(editline* editor, int) {
  return Of(editor).CompleteAtCaret();
}

unsigned char LineEditor::OnGiveUp(editline* editor, int) {
  Of(editor).isGivenUp_ = true;
  return CC_EOF;
}

unsigned char LineEditor::OnEnd(editline* editor, int) {
  const LineInfo* typed = el_line(editor);
  return typed->buffer == typed->lastchar ? CC_EOF : CC_NORM;
}

unsigned char LineEditor::OnStop(editline*, int) {
  // The library resets the terminal for the stop, and sets it up again afterwards.
  kill(0, SIGTSTP);
  return CC_REDISPLAY;
}

unsigned char LineEditor::CompleteAtCaret() {
  const LineInfo* typed = el_line(editor_.get());
  const Completion completion =
      completer_({typed->buffer, static_cast<std::size_t>(typed->cursor - typed->buffer)});
  if (!completion.insertion.empty()) {
    return el_insertstr(editor_.get(), completion.insertion.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
  }
  if (completion.choices.size() < 2) return CC_ERROR;
  List(completion.choices);
  return CC_REDISPLAY;
}

}  // namespace kav
