#include "cli/commands.h"

#include <string>
#include <string_view>
#include <vector>

#include "cli/answer_writer.h"
#include "common/number_text.h"
#include "memory/constants_table.h"

namespace kav {
namespace {

std::u16string FilterOf(const std::vector<std::string_view>& words) {
  std::string filter;
  for (const std::string_view word : words) filter.append(word) += ' ';
  return Widen(filter);
}

}  // namespace

int RunConstants(const CommandLine& line) {
  const auto constants = LoadConstants(ConstantsFolders());
  if (!constants) return AnswerOnce(Failure{Narrow(constants.error())}, line.options);
  const std::u16string filter = FilterOf(line.items);
  Rows rows(line.options);
  for (const Constant& constant : *constants) {
    if (!Matches(constant, filter)) continue;
    rows.Add({Narrow(constant.name), CellOf(Narrow(constant.value))});
  }
  return AnswerOnce(rows, line.options);
}

}  // namespace kav
