// kavcalc: the calculator without its screens.
#include <unistd.h>

#include <cstdlib>

#include "cli/answer_writer.h"
#include "cli/command_line.h"
#include "cli/commands.h"
#include "cli/descriptor.h"
#include "settings/file_descriptor.h"

namespace __gnu_cxx {
/// In place of the standard library's, which would name an exception that nobody catches: with what
/// it needs to read such names, each start would adjust a tenth more addresses.
void __verbose_terminate_handler() {
  std::abort();
}
}  // namespace __gnu_cxx

int main(int argc, char** argv) {
  kav::ReserveStandardFiles();
  kav::SurviveSizeLimit();
  const auto line = kav::ReadCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc}, kav::Commands());
  if (line) return line->command->run(*line);
  const kav::EarlyEnd& end = line.error();
  if (end.status == 0) return kav::AnswerOnce(end.text, {});
  kav::WriteAll(STDERR_FILENO, end.text);
  return end.status;
}
