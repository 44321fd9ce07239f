#include "cli/commands.h"

#include <array>

#include "cli/help_texts.h"

namespace kav {
namespace {

constexpr std::array kCommands{
    Command{"eval", "[eval] [OPTION]... [--] [EXPRESSION]...", "evaluate expressions", kEvalDetails,
            RunEval},
    Command{"check", "check [OPTION]... [--] [FORMULA]...", "check formulas with variables",
            kCheckDetails, RunCheck},
    Command{"format", "format [OPTION]... [--] [NUMBER]...",
            "write numbers as the calculator shows them", kFormatDetails, RunFormat},
    Command{"matrix", "matrix [OPTION]... [--] [EXPRESSION]...", "evaluate matrix expressions",
            kMatrixDetails, RunMatrix},
    Command{"stats", "stats [OPTION]... [--] [FILE]...", "sums, moments and curves of data",
            kStatsDetails, RunStats},
    Command{"plot", "plot [OPTION]... [--] [EQUATION]...", "sample curves", kPlotDetails, RunPlot},
    Command{"convert", "convert [OPTION]... [--] CATEGORY FROM [TO] [VALUE]...",
            "convert values to other units", kConvertDetails, RunConvert},
    Command{"keys", "keys [OPTION]... [--] [KEY]...", "press keys of the scientific screen",
            kKeysDetails, RunKeys},
    Command{"macro", "macro list|add|remove [OPTION]... [--] [ARGUMENT]...",
            "list, add and remove macros", kMacroDetails, RunMacro},
    Command{"memory", "memory list|store|clear [OPTION]... [--] [ARGUMENT]...",
            "list, store and clear memory variables", kMemoryDetails, RunMemory},
    Command{"constants", "constants [OPTION]... [--] [WORD]...", "list constants",
            kConstantsDetails, RunConstants},
};

}  // namespace

std::span<const Command> Commands() {
  return kCommands;
}

}  // namespace kav
