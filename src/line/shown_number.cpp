#include "line/shown_number.h"

#include "common/number_text.h"

namespace kav {

std::u16string ShownNumber(double value, DisplayFormat format, BaseMode base) {
  return Widen(TextOrMessage(FormatNumber(value, format, base)));
}

std::u16string InsertedNumber(double value, DisplayFormat format, BaseMode base) {
  return Widen(TextOrMessage(FormatForInsertion(value, format, base)));
}

}  // namespace kav
