#include "cli/json_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "common/number_text.h"

namespace kav {
namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;
// In UTF-8 the control characters beyond ASCII are this byte and one of those below kFirstBeyond.
constexpr unsigned char kBeforeSecondBlock = 0xC2;
constexpr unsigned char kFirstBeyond = 0xA0;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

unsigned char ByteOf(char c) {
  return static_cast<unsigned char>(c);
}

/// Whether a text may hold `c` as it is, whatever stands beside it.
bool IsPlain(char c) {
  return ByteOf(c) >= kFirstPrintable && ByteOf(c) < kDelete && c != '"' && c != '\\';
}

void AppendCode(std::string& out, unsigned char code) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  out.append("\\u00").push_back(kDigits[code / kDigits.size()]);
  out.push_back(kDigits[code % kDigits.size()]);
}

/// Appends an ASCII character that is not plain.
void AppendEscaped(std::string& out, char c) {
  constexpr std::string_view kEscaped = "\"\\\b\f\n\r\t";
  constexpr std::string_view kLetters = "\"\\bfnrt";
  const std::size_t at = kEscaped.find(c);
  if (at == kEscaped.npos) return AppendCode(out, ByteOf(c));
  out.push_back('\\');
  out.push_back(kLetters[at]);
}

/// Appends a character beyond ASCII, or a byte that is none.
void AppendBeyond(std::string& out, std::string_view character) {
  if (character.size() == 1) {
    out += kReplacement;
  } else if (ByteOf(character[0]) == kBeforeSecondBlock && ByteOf(character[1]) < kFirstBeyond) {
    AppendCode(out, ByteOf(character[1]));
  } else {
    out += character;
  }
}

}  // namespace

void AppendJsonText(std::string& out, std::string_view text) {
  out += '"';
  while (!text.empty()) {
    std::size_t length = 0;
    while (length < text.size() && IsPlain(text[length])) ++length;
    out += text.substr(0, length);
    text.remove_prefix(length);
    if (text.empty()) break;
    length = Utf8Length(text);
    ByteOf(text.front()) <= kDelete ? AppendEscaped(out, text.front())
                                    : AppendBeyond(out, text.substr(0, length));
    text.remove_prefix(length);
  }
  out += '"';
}

void AppendJsonNumber(std::string& out, double value) {
  if (std::isnan(value)) {
    out += "\"nan\"";
  } else if (!std::isfinite(value)) {
    out += value < 0 ? "\"-inf\"" : "\"inf\"";
  } else {
    constexpr std::size_t kLongest = 32;
    std::array<char, kLongest> digits;
    const auto printed = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    out.append(digits.data(), printed.ptr);
  }
}

}  // namespace kav
