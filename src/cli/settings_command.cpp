#include "cli/commands.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "cli/answer_writer.h"
#include "cli/cli_texts.h"
#include "cli/descriptor.h"
#include "cli/options.h"
#include "cli/stored_settings.h"
#include "cli/typed_lines.h"
#include "cli/unreadable.h"
#include "cli/verbs.h"
#include "common/expected.h"
#include "common/number_text.h"
#include "settings/atomic_file.h"
#include "settings/file_descriptor.h"
#include "settings/file_error_texts.h"
#include "store/settings_texts.h"
#include "store/settings_toml.h"

namespace kav {
namespace {

// The store refuses what is cut here.
constexpr std::size_t kMostToImport = kLargestSettingsFile + 1;

/// What the line names, or standard input or output.
std::string_view FileOf(const CommandLine& line) {
  return line.items.empty() ? kStandardInput : line.items.front();
}

Answer AnswerExport(std::string_view path, StoredSettings& settings) {
  auto text = settings.Export();
  if (!text) return Failure{Narrow(text.error())};
  if (path == kStandardInput) return *std::move(text);
  const auto error = SaveFile(std::string(path), *text);
  if (!error) return Line(kDone);
  return Failure{Narrow(FileFailure(kCannotExport, Widen(path), ReasonAndRemedy(*error)))};
}

int ExportSettings(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerOnce(AnswerExport(FileOf(line), settings), line.options);
}

Expected<std::string, int> ReadFile(std::string_view path) {
  if (path == kStandardInput) {
    TellAwaitedText(kExportAwaited);
    return ReadAll(STDIN_FILENO, kMostToImport);
  }
  const FileDescriptor file(open(std::string(path).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (!file.IsOpen()) return errno;
  return ReadAll(file.Number(), kMostToImport);
}

Answer AnswerImport(std::string_view path, StoredSettings& settings) {
  const auto text = ReadFile(path);
  if (!text) {
    return Failure{Narrow(FileFailure(kCannotImport, Widen(path), WhyUnreadable(text.error())))};
  }
  if (const auto refusal = settings.Import(*text)) return Failure{Narrow(*refusal)};
  return Line(kDone);
}

int ImportSettings(const CommandLine& line) {
  StoredSettings settings(line.options);
  return AnswerOnce(AnswerImport(FileOf(line), settings), line.options);
}

}  // namespace

int RunSettings(const CommandLine& line) {
  static constexpr std::array kVerbs{
      Verb{"export", Arguments::OneOrNone, "one file or none", ExportSettings},
      Verb{"import", Arguments::OneOrNone, "one file or none", ImportSettings},
  };
  return RunVerb(line, kVerbs);
}

}  // namespace kav
