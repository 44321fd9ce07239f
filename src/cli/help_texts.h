// The paragraphs of kavcalc's help.
#pragma once

#include <string_view>

namespace kav {

inline constexpr std::string_view kProgramSummary = "The calculator on the command line.";

inline constexpr std::string_view kItemsHelp =
    R"text(The items are the arguments or, without any, the lines of standard input. Each
gets one line on standard output; where an item fails, that line is "error: "
and the reason. "--" ends the options. An argument that begins with "-" and a
digit, "." or "(" is an item; one that begins with "-" and a letter is one only
behind "--": kavcalc -- '-sin(30)'

Exit status: 0 everything was answered, 1 something failed, 2 the arguments were
unusable.)text";

inline constexpr std::string_view kEvalDetails =
    R"text(Evaluates each expression just as "=" does it on the scientific screen, calls of
macros ("M:name(...)") included. With neither arguments nor piped input it
prompts for expressions: Tab completes names, the arrows go through the history,
Ctrl-D ends.

  kavcalc '2*sin(30)+3!'                  7
  kavcalc --base hex 'FF AND F'           F)text";

inline constexpr std::string_view kCheckDetails =
    R"text(Checks each formula as the calculator does before it plots or stores it, without
evaluating it, and answers "ok" or what is wrong. With --steps the order of the
calculation follows each "ok", one indented line a step.

  kavcalc check 'x^2+3*x-5'               ok
  kavcalc check --variables xy 'x+y'      ok)text";

inline constexpr std::string_view kFormatDetails =
    R"text(Writes each number as a result line shows it.

  kavcalc format --display thousands 1234567      1,234,567
  kavcalc format --base hex 255                   FF)text";

inline constexpr std::string_view kKeysDetails =
    R"text(Presses the keys of a fresh scientific screen, one an argument or one a line of
standard input, and prints one line for all of them: the expression line with "|"
at the caret or "[" and "]" around the selection, a tab, the result line. A key is

  CAPTION   the key that shows this caption at that moment: 7 SIN Shift X^2 =
  "TEXT"    TEXT typed into the line, the quotes being part of the argument
  [A:B]     selects from position A to B, also backwards; [A] sets the caret
  ITEM      behind PB, M/C and the base key (DEC at first): an item of their menu,
            an entry of the history by its whole text or as the menu shows it

  kavcalc keys SIN 3 0 =                          [sin(30)] TAB 0.5
  kavcalc keys DEC Hexadecimal '"FF"' =           [FF] TAB FF)text";

}  // namespace kav
