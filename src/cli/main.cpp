// kavcalc: the calculator without its screens.
#include "cli/answer_writer.h"
#include "cli/command_line.h"
#include "cli/commands.h"
#include "cli/descriptor.h"

namespace {

/// Help and version are answers; a complaint about the arguments is none.
int Say(const kav::EarlyEnd& end) {
  if (end.status != 0) {
    kav::WriteAll(2, end.text);
    return end.status;
  }
  kav::AnswerWriter answers;
  answers.Text() += end.text;
  return answers.Finish();
}

}  // namespace

int main(int argc, char** argv) {
  kav::ReserveStandardFiles();
  const auto line = kav::ReadCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc}, kav::Commands());
  if (!line) return Say(line.error());
  return line->command->run(*line);
}
