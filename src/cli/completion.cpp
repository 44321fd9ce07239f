#include "cli/completion.h"

#include <algorithm>
#include <cstddef>

#include "common/ascii.h"
#include "engine/fold_case.h"
#include "engine/function_names.h"

namespace kav {
namespace {

constexpr std::string_view kMacroMark = "M:";

/// The unfinished name at the end of `before`. The name of a macro begins with its mark and may
/// hold anything but "(".
std::string_view BegunName(std::string_view before) {
  const std::size_t mark = before.rfind(kMacroMark);
  if (mark != before.npos && before.find('(', mark) == before.npos) return before.substr(mark);
  std::size_t start = before.size();
  while (start > 0 && IsLetter(before[start - 1])) --start;
  return before.substr(start);
}

bool GoesOnAs(std::string_view begun, std::string_view name) {
  return name.substr(0, begun.size()) == begun;
}

/// The longest common start of `names`, which must not be empty.
std::string_view CommonStart(const std::vector<std::string>& names) {
  std::string_view common = names.front();
  for (const std::string& name : names) {
    const auto end = std::mismatch(common.begin(), common.end(), name.begin(), name.end()).first;
    common = common.substr(0, static_cast<std::size_t>(end - common.begin()));
  }
  return common;
}

}  // namespace

std::vector<std::string> NamesOfFunctions() {
  std::vector<std::string> names{std::string(kPiWord)};
  names.reserve(1 + kFunctionNames.size());
  for (const FunctionName& function : kFunctionNames) {
    names.push_back(std::string(function.name) + "(");
  }
  return names;
}

Completion Complete(std::string_view before, std::span<const std::string> names) {
  const std::string_view begun = BegunName(before);
  const std::string folded = FoldCase(begun, BaseMode::Decimal);
  if (begun.empty()) return {};
  Completion completion;
  for (const std::string& name : names) {
    if (GoesOnAs(begun, name) || GoesOnAs(folded, name)) completion.choices.push_back(name);
  }
  if (completion.choices.empty()) return completion;
  completion.insertion = CommonStart(completion.choices).substr(begun.size());
  if (!completion.insertion.empty()) completion.choices.clear();
  return completion;
}

}  // namespace kav
