// Lines of any content that may have no value. Their pieces lie one behind the other, a mend is
// another line that has a value, and the place of the failure lies within the line. The first byte
// chooses the modes. As a digit, 0 is decimal, 1 hexadecimal, 2 binary and 3 octal; 4 to 7 are the
// same with a last answer.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "line/line_words.h"
#include "macros/line_fault.h"
#include "matrix/live_matrix.h"
#include "matrix/matrix_fault.h"
#include "matrix/matrix_line.h"
#include "matrix/matrix_value.h"
#include "settings/keys.h"

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

/// Settings with one macro.
class Settings {
 public:
  Settings() {
    store_.Set(kav::kMacroCount, 1);
    store_.Set(kav::MacroName(0), "Area");
    store_.Set(kav::MacroType(0), "TYPE2 : F(X,Y)");
    store_.Set(kav::MacroFormula(0), "x*y");
  }

  const kav::MacroStore& Macros() const { return macros_; }

 private:
  kav::MemorySettingsStore store_;
  kav::MacroStore macros_{store_};
};

void CheckPieces(std::u16string_view line, const kav::CalcModes& modes,
                 const kav::MacroStore& macros) {
  kav::KnownWords words = kav::WordsOf(modes);
  kav::AddMacroNames(macros, words);
  std::size_t end = 0;
  for (const kav::LinePiece& piece : kav::CutIntoPieces(line, words, modes.baseMode)) {
    Check(line.substr(end, piece.start - end).find_first_not_of(u' ') == line.npos);
    Check(piece.length > 0 && piece.start >= end && piece.End() <= line.size());
    end = piece.End();
  }
  Check(line.substr(end).find_first_not_of(u' ') == line.npos);
}

void CheckPlace(std::u16string_view line, const kav::LineFault& fault) {
  if (!fault.place) return;
  Check(fault.place->position <= line.size());
  Check(fault.place->length <= line.size() - fault.place->position);
}

void CheckNumbers(const std::u16string& line, const kav::CalcModes& modes,
                  const kav::MacroStore& macros) {
  const auto value = kav::EvaluateLine(kav::Narrow(line), modes, macros);
  if (value) return;
  const kav::LineFault fault = kav::FaultOf(line, value.error(), modes, macros);
  Check(fault == kav::FaultOf(line, value.error(), modes, macros));
  CheckPlace(line, fault);
  if (!fault.mended) return;
  Check(fault.place && *fault.mended != line);
  Check(static_cast<bool>(kav::EvaluateLine(kav::Narrow(*fault.mended), modes, macros)));
}

const kav::Matrices& SomeMatrices() {
  static const kav::Matrices matrices = [] {
    kav::Matrices some;
    some[0] = kav::MatrixOfSize(2, 2);
    some[1] = kav::MatrixOfSize(2, 3);
    return some;
  }();
  return matrices;
}

bool HasMatrix(std::u16string_view line, const kav::CalcModes& modes) {
  const std::u16string_view text = kav::TrimBlanks(line);
  return kav::IsMatrixExpression(text) &&
         kav::LiveOrder(text, SomeMatrices(), modes.answer, kav::kEffortAfterEquals);
}

void CheckMatrices(std::u16string_view line, const kav::CalcModes& modes,
                   const kav::MacroStore& macros) {
  if (!kav::IsMatrixExpression(line) || HasMatrix(line, modes)) return;
  const kav::MatrixLineContext context{SomeMatrices(), modes, macros, false};
  const kav::LineFault fault = kav::MatrixFaultOf(line, std::nullopt, context);
  CheckPlace(line, fault);
  Check(fault.place.has_value() == fault.mended.has_value());
  if (fault.mended) Check(*fault.mended != line && HasMatrix(*fault.mended, modes));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static const Settings settings;
  kav::CalcModes modes;
  modes.baseMode = static_cast<kav::BaseMode>(1 + data[0] % 4);
  if (data[0] / 4 % 2 == 1) modes.answer = 7.5;
  const std::u16string line =
      kav::Widen(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
  CheckPieces(line, modes, settings.Macros());
  CheckNumbers(line, modes, settings.Macros());
  if (modes.baseMode == kav::BaseMode::Decimal) CheckMatrices(line, modes, settings.Macros());
  return 0;
}
