#include "cli/commands.h"

#include <array>

#include "cli/help_texts.h"

namespace kav {
namespace {

constexpr std::array kCommands{
    Command{"eval",
            "[eval] [OPTION]... [--] [EXPRESSION]...",
            "evaluate expressions",
            kEvalDetails,
            kLineItems,
            RunEval,
            {"An expression", TabKey::CompletesFunction}},
    Command{"check",
            "check [OPTION]... [--] [FORMULA]...",
            "check formulas with variables",
            kCheckDetails,
            kCheckItems,
            RunCheck,
            {"A formula", TabKey::CompletesFunction}},
    Command{"format",
            "format [OPTION]... [--] [NUMBER]...",
            "write numbers as the calculator shows them",
            kFormatDetails,
            kLineItems,
            RunFormat,
            {"A number"}},
    Command{"matrix",
            "matrix [OPTION]... [--] [EXPRESSION]...",
            "evaluate matrix expressions",
            kMatrixDetails,
            kMatrixItems,
            RunMatrix,
            {"A matrix expression", TabKey::CompletesMatrixFunction}},
    Command{"stats",
            "stats [OPTION]... [--] [FILE]...",
            "sums, moments and curves of data",
            kStatsDetails,
            kStatsItems,
            RunStats,
            {"The name of a data file"}},
    Command{"plot",
            "plot [OPTION]... [--] [EQUATION]...",
            "sample curves",
            kPlotDetails,
            kPlotItems,
            RunPlot,
            {"An equation in x", TabKey::CompletesFunction}},
    Command{"convert",
            "convert [OPTION]... [--] CATEGORY FROM [TO] [VALUE]...",
            "convert values to other units",
            kConvertDetails,
            kConvertItems,
            RunConvert,
            {"A value"}},
    Command{"keys",
            "keys [OPTION]... [--] [KEY]...",
            "press keys of the scientific screen",
            kKeysDetails,
            kKeysItems,
            RunKeys,
            {"A key"}},
    Command{"macro", "macro list|add|remove [OPTION]... [--] [ARGUMENT]...",
            "list, add and remove macros", kMacroDetails, kVerbItems, RunMacro},
    Command{"memory", "memory list|store|clear [OPTION]... [--] [ARGUMENT]...",
            "list, store and clear memory variables", kMemoryDetails, kMemoryItems, RunMemory},
    Command{"settings", "settings export|import [OPTION]... [--] [FILE]",
            "write or read everything that is stored", kSettingsDetails, kVerbItems, RunSettings},
    Command{"constants", "constants [OPTION]... [--] [WORD]...", "list constants",
            kConstantsDetails, kConstantsItems, RunConstants},
};

}  // namespace

std::span<const Command> Commands() {
  return kCommands;
}

}  // namespace kav
