#include "macros/line_fault.h"

#include "common/number_text.h"

namespace kav {

LineFault FaultOf(std::u16string_view line, const LineFailure& failure, CalcModes,
                  const MacroStore&) {
  LineFault fault;
  if (failure.place) fault.place = WidenedPlace(Narrow(line), *failure.place);
  return fault;
}

}  // namespace kav
