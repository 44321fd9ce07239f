// The scientific screen without its pixels: line, keys, bases, memory, history and evaluation.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "line/converter_link.h"
#include "line/expression_line.h"
#include "line/history.h"
#include "line/key_request.h"
#include "line/key_state.h"
#include "line/keypad.h"
#include "line/line_mend.h"
#include "line/screen_menus.h"
#include "macros/line_evaluator.h"
#include "macros/live_result.h"
#include "macros/macro_store.h"
#include "settings/past_lines.h"
#include "settings/settings_store.h"

namespace kav {

using ScientificRequest =
    std::variant<Nothing, ShowMenu<Key>, OpenMacroEditor, OpenMacroList, OpenConverter, TellStop,
                 StoreMemoryVariable, RecallMemoryVariable, OpenConstants>;

/// Holds the whole state of the screen. The store must outlive it.
class ScientificModel {
 public:
  /// Loads the settings and the history.
  explicit ScientificModel(SettingsStore& store);

  /// Writes what the screen leaves behind into the store.
  void Save() const;

  // The two lines.
  const ExpressionLine& Line() const { return line_; }
  void SetLine(std::u16string text, Selection selection);
  const std::u16string& ResultText() const { return resultText_; }
  /// An operator typed while all of the line is selected goes on with that line, as its key does.
  /// False: nothing was done, and `typed` is a character like others.
  bool TypeOperator(char16_t typed);
  /// What `line` comes to, before "=" says it. nullopt if there is nothing to say, or the user does
  /// not want it.
  std::optional<std::u16string> LiveResult(std::u16string_view line) const;

  // What is copied and kept.
  /// The result in plain digits; nullopt if there is a message in its place.
  std::optional<std::u16string> CopiedResult() const;
  /// The line that was answered, and its answer; nullopt if the result line shows none.
  std::optional<std::u16string> CopiedLine() const;
  /// The memory register as the result line would show it; empty while it is 0.
  std::u16string MemoryText() const;
  BaseMode Base() const { return modes_.baseMode; }

  // The keys as they are now.
  std::u16string_view Caption(Key key) const;
  bool IsEnabled(Key key) const;
  bool IsVisible(Key key) const;
  /// Presses `key`; a disabled or hidden one does nothing.
  ScientificRequest Press(Key key);
  /// The visible key that shows `caption`; nullopt if none does.
  std::optional<Key> KeyShowing(std::u16string_view caption) const;

  /// The menu that `key` opens now; empty for a key without one.
  Menu MenuOf(Key key) const;
  /// An id that the menu of `key` does not offer does nothing.
  ScientificRequest Choose(Key key, int id);

  // What dialogs bring back. A number beyond the range of double is told, and not inserted.
  /// Replaces the selection by the result, if there is one; keeps the positions and the register M.
  void TakeConverter(const ConverterOutcome& outcome);
  /// Writes the call of macro `index` around the selection; nothing if there is no such macro.
  void TakeMacro(int index);
  /// Inserts the text of a recalled memory variable.
  ScientificRequest TakeVariable(std::u16string_view value);
  /// Inserts the text of a constant.
  ScientificRequest TakeConstant(std::u16string_view value);
  /// Reads the display settings again after their dialog changed them.
  void TakeDisplaySettings();

  /// What the last "=" evaluated, for the history of all sessions; nullopt if the line was empty.
  std::optional<PastLine> Evaluated() const;
  // Both replace the selection; an answer only if it is a number.
  void TakePastLine(const PastLine& past);
  void TakePastAnswer(const PastLine& past);

  double LastAnswer() const { return lastAnswer_; }
  const History& PastLines() const { return history_; }
  /// The message of the last "="; empty if that had an answer, and before the first "=".
  const std::u16string& ErrorText() const { return errorText_; }
  /// About the line, if the last "=" failed and the line is still that one.
  const std::optional<LineFault>& Fault() const;
  /// Writes the mended line and evaluates it; does nothing without a mend.
  ScientificRequest TakeMend();
  /// The line as it was when "=" or CLR was last pressed.
  const std::u16string& Expression() const { return expression_; }

 private:
  void Change(Key key);
  void Evaluate();
  void Answer(double value);
  void Fail(const LineFailure& failure);
  void ShowAnswer();
  ScientificRequest Insert(double value);
  void ChooseHistory(int id);
  void ChooseBase(int id);
  ScientificRequest ChooseMemory(int id);
  ScientificRequest ConverterRequest() const;

  SettingsStore& store_;
  MacroStore macros_;
  CalcModes modes_;  ///< with the last answer, whatever failed since
  DisplayFormat format_;
  ConverterLink converter_;
  History history_;
  ExpressionLine line_;
  ShiftState shift_ = ShiftState::Off;
  std::u16string expression_;
  std::u16string errorText_;
  std::u16string resultText_;
  bool showsMessage_ = false;  ///< in place of an answer; another base writes that again
  double lastAnswer_ = 0;
  std::optional<AnsweredLine> answered_;  ///< by the last "="
  std::optional<LineFault> fault_;        ///< of that line, if it failed
};

}  // namespace kav
