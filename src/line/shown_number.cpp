#include "line/shown_number.h"

#include "common/number_text.h"

namespace kav {
namespace {

std::u16string TextOrMessage(const CalcResult<std::string>& text) {
  return Widen(text ? *text : text.error().message);
}

}  // namespace

std::u16string ShownNumber(double value, DisplayFormat format, BaseMode base) {
  return TextOrMessage(FormatNumber(value, format, base));
}

std::u16string InsertedNumber(double value, DisplayFormat format, BaseMode base) {
  return TextOrMessage(FormatForInsertion(value, format, base));
}

}  // namespace kav
