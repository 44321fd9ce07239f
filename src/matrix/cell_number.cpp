#include "matrix/cell_number.h"

#include <array>
#include <cmath>

#include "common/number_text.h"
#include "display/number_format.h"

namespace kav {
namespace {

constexpr DisplayFormat kCellFormat{DisplayType::FloatingPoint, 12};

/// The ASCII characters that `text` begins with, in `buffer`: a number is one of them. Empty if
/// there are too many.
template <std::size_t kSize>
std::string_view AsciiStart(std::u16string_view text, std::array<char, kSize>& buffer) {
  std::size_t length = 0;
  for (; length < text.size() && text[length] < 0x80; ++length) {
    if (length == kSize) return {};
    buffer[length] = static_cast<char>(text[length]);
  }
  return {buffer.data(), length};
}

}  // namespace

double ReadCell(std::u16string_view text) {
  std::array<char, 64> buffer;
  const std::string_view start = AsciiStart(text, buffer);
  return start.empty() ? ReadLeadingNumber(Narrow(text)) : ReadLeadingNumber(start);
}

std::u16string CellText(double value) {
  const std::string ascii = TextOrMessage(FormatNumber(value, kCellFormat));
  return {ascii.begin(), ascii.end()};
}

double AsCell(double value) {
  return std::isfinite(value) ? RoundAsShown(value, kCellFormat.precision) : 0.0;
}

}  // namespace kav
