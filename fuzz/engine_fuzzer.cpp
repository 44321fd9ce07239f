// Texts of any content in every base and angle unit. The answer is that of the plain rules, is the
// same the next time, and can be shown. The first byte chooses the modes. As a digit, 0 is decimal,
// 1 hexadecimal, 2 binary and 3 octal; 4 to 7 are the same in radians.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "display/number_format.h"
#include "engine/expression_engine.h"
#include "engine/fold_case.h"
#include "support/effort.h"
#include "support/plain_engine.h"
#include "support/plain_format.h"

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

bool AreEqual(const kav::CalcResult<double>& a, const kav::CalcResult<double>& b) {
  if (!a || !b) return !a && !b && a.error() == b.error();
  return kav::test::BitsOf(*a) == kav::test::BitsOf(*b);
}

void CheckAnswer(std::string_view text, kav::CalcModes modes) {
  const std::string folded = kav::FoldCase(text, modes.baseMode);
  const auto answer = kav::Evaluate(text, modes);
  Check(AreEqual(answer, kav::Evaluate(text, modes)));
  Check(AreEqual(answer, kav::Evaluate(folded, modes)));
  const kav::test::PlainAnswer plain = kav::test::PlainEvaluate(folded, modes);
  Check((answer ? "" : answer.error().message) == plain.message);
  if (answer) Check(kav::test::BitsOf(*answer) == kav::test::BitsOf(plain.value));
}

/// The text of the answer in the format that `choice` stands for.
void CheckShown(double answer, std::uint8_t choice, kav::BaseMode base) {
  const kav::DisplayFormat format{static_cast<kav::DisplayType>(choice % 5), choice / 5 % 17};
  const auto shown = kav::FormatNumber(answer, format, base);
  Check(shown && *shown == kav::test::PlainFormat(answer, format, base));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const kav::CalcModes modes{static_cast<kav::AngleUnit>(1 + data[0] / 4 % 2),
                             static_cast<kav::BaseMode>(1 + data[0] % 4)};
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  CheckAnswer(text, modes);
  if (const auto answer = kav::Evaluate(text, modes)) {
    CheckShown(*answer, data[size - 1], modes.baseMode);
  }
  return 0;
}
