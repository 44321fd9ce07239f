#include "cli/line_editor.h"

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

LineEditor* LineEditor::active_ = nullptr;

LineEditor::LineEditor(Completer completer, const char* library)
    : completer_(std::move(completer)), library_(LoadEditLibrary(library)) {
  // The library decodes typed characters by the locale.
  std::setlocale(LC_CTYPE, "C.UTF-8");
  if (!library_) return;
  history_ = {library_->historyInit(), library_->historyEnd};
  editor_ = {library_->init(kProgramName.data(), stdin, stdout, stderr), library_->end};
  if (history_ && editor_) SetUp();
}

void LineEditor::SetUp() {
  HistEvent event;
  library_->history(history_.get(), &event, H_SETSIZE, static_cast<int>(PastLines::kCapacity));
  library_->history(history_.get(), &event, H_SETUNIQUE, 1);
  EditLine* editor = editor_.get();
  const auto set = library_->set;
  set(editor, EL_PROMPT, PromptText);
  set(editor, EL_EDITOR, "emacs");
  set(editor, EL_SIGNAL, 1);
  set(editor, EL_HIST, library_->history, history_.get());
  set(editor, EL_ADDFN, kTabFunction, "complete the name at the caret", OnTab);
  set(editor, EL_BIND, "^I", kTabFunction, nullptr);
  // As keys, not as signals: a signal just before the wait for the next key would be lost.
  set(editor, EL_SETTY, "-d", "-isig", nullptr);
  set(editor, EL_ADDFN, kGiveUpFunction, "give up the line", OnGiveUp);
  set(editor, EL_BIND, "^C", kGiveUpFunction, nullptr);
  set(editor, EL_ADDFN, kStopFunction, "stop the program until it is continued", OnStop);
  set(editor, EL_BIND, "^Z", kStopFunction, nullptr);
  // What a Ctrl-D becomes that is typed before the terminal is set up for the line.
  set(editor, EL_ADDFN, kEndFunction, "end if the line is empty", OnEnd);
  set(editor, EL_BIND, "^@", kEndFunction, nullptr);
  library_->source(editor, nullptr);
}

LineEditor::~LineEditor() = default;

LineEditor::Outcome LineEditor::Read(std::string& line, std::string_view prompt) {
  if (!library_) return ReadPlain(line, prompt);
  if (!history_ || !editor_) return Outcome::End;
  active_ = this;
  prompt_ = prompt;
  isGivenUp_ = false;
  // Before the prompt appears: until then the terminal collects whole lines, and would lose a
  // Ctrl-D among them.
  library_->set(editor_.get(), EL_PREP_TERM, 1);
  int count = 0;
  const char* text = library_->gets(editor_.get(), &count);
  if (text == nullptr || count <= 0) {
    static_cast<void>(WriteAll(STDOUT_FILENO, "\n"));
    return isGivenUp_ ? Outcome::GivenUp : Outcome::End;
  }
  line.assign(text, static_cast<std::size_t>(count));
  if (line.back() == '\n') line.pop_back();
  return Outcome::Line;
}

LineEditor::Outcome LineEditor::ReadPlain(std::string& line, std::string_view prompt) {
  static_cast<void>(WriteAll(STDOUT_FILENO, prompt));
  line.clear();
  int c = std::getchar();
  for (; c != EOF && c != '\n'; c = std::getchar()) line.push_back(static_cast<char>(c));
  if (c != EOF || !line.empty()) return Outcome::Line;
  static_cast<void>(WriteAll(STDOUT_FILENO, "\n"));
  return Outcome::End;
}

void LineEditor::Remember(const std::string& line) {
  HistEvent event;
  if (history_) library_->history(history_.get(), &event, H_ENTER, line.c_str());
}

char* LineEditor::PromptText(EditLine*) {
  return active_->prompt_.data();
}

unsigned char LineEditor::OnTab(EditLine*, int) {
  return active_->CompleteAtCaret();
}

unsigned char LineEditor::OnGiveUp(EditLine*, int) {
  active_->isGivenUp_ = true;
  return CC_EOF;
}

unsigned char LineEditor::OnEnd(EditLine* editor, int) {
  const LineInfo* typed = active_->library_->line(editor);
  return typed->buffer == typed->lastchar ? CC_EOF : CC_NORM;
}

unsigned char LineEditor::OnStop(EditLine*, int) {
  // The library resets the terminal for the stop, and sets it up again afterwards.
  kill(0, SIGTSTP);
  return CC_REDISPLAY;
}

unsigned char LineEditor::CompleteAtCaret() {
  const LineInfo* typed = library_->line(editor_.get());
  const Completion completion =
      completer_({typed->buffer, static_cast<std::size_t>(typed->cursor - typed->buffer)});
  const std::string& inserted = completion.insertion;
  if (!inserted.empty()) {
    const int failure = library_->insertText(editor_.get(), inserted.c_str());
    return failure == 0 ? CC_REFRESH : CC_ERROR;
  }
  if (completion.choices.size() < 2) return CC_ERROR;
  List(completion.choices);
  return CC_REDISPLAY;
}

}  // namespace kav
