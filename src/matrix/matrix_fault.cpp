#include "matrix/matrix_fault.h"

#include <cstddef>
#include <optional>

#include "common/number_text.h"

namespace kav {

LineFault MatrixFaultOf(std::u16string_view line, const CalcError& error, const Matrices&) {
  LineFault fault;
  if (error.place) {
    const auto blanks = static_cast<std::size_t>(TrimBlanks(line).data() - line.data());
    fault.place = WidenedPlace(Narrow(line), {error.place->position + blanks, error.place->length});
  }
  return fault;
}

}  // namespace kav
