// The paragraphs of kavcalc's help.
#pragma once

#include <string_view>

namespace kav {

inline constexpr std::string_view kProgramSummary = "The calculator on the command line.";

// What stands below the details of a command: what its items are and what answers them.

inline constexpr std::string_view kLineItems =
    R"text(The items are the arguments or, without any, the lines of standard input. Each
gets one line on standard output. Where an item fails, its line is "error: " and
the reason.)text";

inline constexpr std::string_view kCheckItems =
    R"text(The items are the arguments or, without any, the lines of standard input. Each
gets one line on standard output, with --steps more. Where an item fails, its
line is "error: " and the reason.)text";

inline constexpr std::string_view kMatrixItems =
    R"text(The items are the arguments or, without any, the lines of standard input. Each
gets one line on standard output, or those of a matrix. Where an item fails, its
line is "error: " and the reason. A matrix file that cannot be read or is none
makes the arguments unusable.)text";

inline constexpr std::string_view kStatsItems =
    R"text(The items are the arguments or, without any, the lines of standard input: each
names a file. Where a file fails, its one line is "error: " and the reason.
Standard error names the first line of each kind that is read, but unusual: text,
a decimal comma, another number of numbers than a row has, a count that is no
whole number from 1 on, an end that nothing ends.)text";

inline constexpr std::string_view kPlotItems =
    R"text(The items are the arguments or, without any, the lines of standard input. Where
an item fails, its one line is "error: " and the reason.)text";

inline constexpr std::string_view kConvertItems =
    R"text(The values are the arguments behind the units or, without any, the lines of
standard input. Each gets one line on standard output. Where one fails, its line
is "error: " and the reason.)text";

inline constexpr std::string_view kKeysItems =
    R"text(Where a key cannot be pressed, the line is "error: " and the reason.)text";

inline constexpr std::string_view kVerbItems =
    R"text(What to add or remove are the arguments or, without any, the lines of standard
input. Each item gets one line on standard output. Where one fails, its line is
"error: " and the reason.)text";

inline constexpr std::string_view kMemoryItems =
    R"text(What to store or clear are the arguments or, without any, the lines of standard
input. Each item gets one line on standard output, "all" gets twenty. Where one
fails, its line is "error: " and the reason.)text";

inline constexpr std::string_view kConstantsItems =
    R"text(Where the table cannot be read, the one line is "error: " and the reason.)text";

inline constexpr std::string_view kArgumentsHelp =
    R"text("--" ends the options. An argument that begins with "-" is an option, unless it
stands behind "--" or a digit, "." or "(" follows the "-".

Exit status: 0 everything was answered, 1 something failed, 2 the arguments were
unusable.)text";

// What "help" shows at the prompt.
inline constexpr std::string_view kPromptHelp =
    R"text(Type an expression and press Enter:

  2*(3+4)^2      + - * / ^ and parentheses; % is the remainder
  sqrt(2)        sin cos tan asin acos atan sinh cosh tanh log ln exp sqrt abs
                 int frac
  5!  5c2  5p2   factorial, combinations, permutations
  2*pi           pi is 3.14159...
  ans/2          ans is the last answer, 0 before the first
  M:area(2,3)    a macro that was made in the window or with "kavcalc macro add"

Tab completes names, the arrows go through earlier lines, Ctrl-R searches them,
Ctrl-C gives up a line. "help" shows this, "quit" or Ctrl-D ends. Angles, bases
and displays are options: "kavcalc eval --help" names them. Matrices, data, plots,
units and more are commands: "kavcalc --help" names those.
)text";

inline constexpr std::string_view kEvalDetails =
    R"text(Evaluates each expression just as "=" does it on the scientific screen, calls of
macros ("M:name(...)") included. With neither arguments nor piped input it
prompts for expressions: "ans" is the last answer there, "help" tells more, Tab
completes names, the arrows go through the history, "quit" or Ctrl-D ends. At a
terminal a "^" stands below the place of a failure, perhaps with a line that was
meant. Without --angle, angles are in the unit that is set in the window.

  kavcalc --angle deg '2*sin(30)+3!'      7
  kavcalc -- '-sqrt(4)'                   -2
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

inline constexpr std::string_view kMatrixDetails =
    R"text(Evaluates each expression over the matrices [M1], [M2], [M3] and [M Ans] just as
"=" does it on the matrix screen. The answer is the matrix as a matrix file holds
it, and is [M Ans] for the expressions that follow. An expression without
matrices and their functions is a number expression and gets one line.

  operators    + - * ^
  functions    inverse(A) transpose(A) determinant(A) triangular(A)
               linearequation(A,B)

A matrix file holds "[ROWS*COLUMNS]" and then a line for each row, with a tab
between two cells. It may be a pipe; "-" is standard input:

  printf '[2*2]\n2\t1\n1\t1\n' >a.txt
  kavcalc matrix --m1 a.txt 'inverse([M1])' '[M1]*[M Ans]' 1+1)text";

inline constexpr std::string_view kPlotDetails =
    R"text(Samples each equation in x as a plot does, in 230 lines: the number of the
sample from 0, a tab, its x, a tab, the row of pixels where the curve stands, and
nothing where it has no point. A blank line is between two equations. --range
tells what is plotted and --area where: its rows count downwards from TOP, where
YMAX is, to BOTTOM. --table gives lines of x, a tab, and the value, which is
empty where there is none; --svg one picture of all equations, as the graph is
saved.

  kavcalc plot 'x^2/10'
  kavcalc plot --table 0 1 0.25 'sqrt(x)'
  kavcalc plot --svg 'x^2' 'x+1' >graph.svg
  kavcalc plot --range -5 5 -2 2 --area 0 479 'sin(x)' 1/x)text";

inline constexpr std::string_view kStatsDetails =
    R"text(Sums the data files up that the statistics screens save: a row is a line of its
value, a tab and its count, with --two of X, Y and the count. "-" is standard
input. An answer is several lines, each a name, a tab, and a value with 17
significant digits: rows, total, sum_x, sum_x2, mean_x, sd_sample_x and
sd_population_x; with --two also the same of y, sum_xy, and A, B, C and r as far
as the model has them. Then follow the estimates: y', a tab, X, a tab, the value
for each --x, and x' (x1' and x2' with quadratic) for each --y.

  models       linear A*X+B, power A*X^B, inverse A/X+B, logarithmic A*ln(X)+B,
               exponential A*exp(B*X), quadratic A*X^2+B*X+C

  kavcalc stats data.txt
  kavcalc stats --two --model quadratic --x 2.5 data.txt)text";

inline constexpr std::string_view kConvertDetails =
    R"text(Converts each value from the unit FROM to the unit TO. CATEGORY is the number or
the caption of a category; where it lists conversions rather than units
(Temperature, User Define), one of them stands as FROM, without TO. --list prints
what there is, a line for each unit: category, tab, unit, tab, rate.

  convert user list        prints each conversion of the user's own, a tab and
                           its rate
  convert user add FROM TO RATE
                           stores a conversion and answers its text; an item of
                           standard input is FROM, a tab, TO, a tab, RATE
  convert user remove TEXT...
                           removes each conversion and answers "ok"; all other
                           rates are then stored with six decimals

  kavcalc convert length Miles Kilometers 1            1.609344
  kavcalc convert 12 'Celsius -> Fahrenheit' 100       212
  kavcalc convert --list speed
  kavcalc convert user add inch cm 2.54                inch -> cm
  kavcalc convert 15 'inch -> cm' 10                   25.4)text";

inline constexpr std::string_view kKeysDetails =
    R"text(Presses the keys of a fresh scientific screen, one an argument or one a line of
standard input, and prints one line for all of them: the expression line with "|"
at the caret or "[" and "]" around the selection, a tab, the result line. A key is

  CAPTION   the key that shows this caption at that moment: 7 SIN Shift X^2 =
  "TEXT"    TEXT typed into the line, the quotes being part of the argument
  [A:B]     selects from position A to B, also backwards; [A] sets the caret
  ITEM      behind PB, M/C and the base key (DEC at first): an item of their menu,
            an entry of the history by its whole text or as the menu shows it

  kavcalc keys --angle deg SIN 3 0 =              [sin(30)] TAB 0.5
  kavcalc keys DEC Hexadecimal '"FF"' =           [FF] TAB FF)text";

inline constexpr std::string_view kMacroDetails =
    R"text(The user's macros, which expressions call as "M:NAME(...)":

  macro list               prints each one's name with its arguments, a tab and
                           its formula
  macro add NAME FORMULA   stores a macro in the --variables and answers its name
                           with its arguments; an item of standard input is NAME,
                           a tab, FORMULA, and where a tab and x, xy or xyz
                           follow, these are its variables
  macro remove NAME...     removes the macro of each NAME and answers "ok"

  kavcalc macro add sq 'x^2'                      sq(X)
  kavcalc macro add --variables xy area 'x*y'     area(X,Y)
  kavcalc 'M:sq(3)'                               9
  kavcalc macro remove sq                         ok)text";

inline constexpr std::string_view kMemoryDetails =
    R"text(The twenty memory variables, numbered from 1:

  memory list                      prints a line for each of them
  memory store NUMBER EXPRESSION   evaluates EXPRESSION, stores its value and
                                   answers the new line; an item of standard
                                   input is NUMBER, a tab, EXPRESSION
  memory clear NUMBER...           sets each to 0 and answers its new line; the
                                   item "all" means all of them

  kavcalc memory store 3 '2^3+1'                  Mem03 = 9
  kavcalc memory clear 3                          Mem03 = 0)text";

inline constexpr std::string_view kSettingsDetails =
    R"text(Everything that the calculator has stored for its user, as one file: settings,
macros, memory variables, conversions of the user's own, equations, and the last
lines of each screen.

  settings export [FILE]           writes all of it into FILE, or prints it
  settings import [FILE]           makes FILE, or standard input, all there is.
                                   What was stored is kept beside it, with
                                   ".before-import" after the name

  kavcalc settings export my-calculator.toml      ok
  kavcalc settings import my-calculator.toml      ok)text";

inline constexpr std::string_view kConstantsDetails =
    R"text(Prints the constants of which the name, the value or the group holds each WORD,
in any case; without one all of them. A constant is a line: its name, a tab, its
value. Standard input is not read.

  kavcalc constants speed light
  kavcalc constants | grep -i electron)text";

}  // namespace kav
