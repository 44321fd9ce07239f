#include "engine/fold_case.h"

#include <algorithm>

#include "common/ascii.h"

namespace kav {
namespace {

constexpr std::string_view kAnd = "and";

/// The first "and", or `end`. A text's own find would take five times as long for many an "a".
template <class Iterator>
Iterator FindAnd(Iterator begin, Iterator end) {
  return std::search(begin, end, kAnd.begin(), kAnd.end());
}

}  // namespace

std::string FoldCase(std::string_view text, BaseMode base) {
  std::string folded(text);
  for (char& c : folded) c = LowerCase(c);
  if (base != BaseMode::Hexadecimal) return folded;
  for (auto at = FindAnd(folded.begin(), folded.end()); at != folded.end();
       at = FindAnd(at, folded.end())) {
    at = std::copy_n("AND", kAnd.size(), at);
  }
  return folded;
}

bool IsFolded(std::string_view text, BaseMode base) {
  return std::none_of(text.begin(), text.end(), IsUpper<char>) &&
         (base != BaseMode::Hexadecimal || FindAnd(text.begin(), text.end()) == text.end());
}

}  // namespace kav
