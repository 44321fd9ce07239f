#include "cli/visible_text.h"

#include <algorithm>
#include <cstddef>

#include "common/number_text.h"

namespace kav {
namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;
// The second block of control characters; in UTF-8 this byte is before them.
constexpr unsigned char kBeforeSecondBlock = 0xC2;
constexpr unsigned char kSecondBlock = 0x80;
constexpr unsigned char kSecondBlockEnd = 0xA0;

bool IsInSecondBlock(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= kSecondBlock && byte < kSecondBlockEnd;
}

bool MayBeControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < kFirstPrintable || byte == kDelete || IsInSecondBlock(c);
}

/// Whether the character, which is the `length` bytes that open `text`, is not to be shown as it
/// is.
bool IsControl(std::string_view text, std::size_t length) {
  const char c = text.front();
  if (c == '\n' || c == '\t') return false;
  if (c == '\r') return !text.starts_with("\r\n");
  if (length == 1) return MayBeControl(c);
  return length == 2 && static_cast<unsigned char>(c) == kBeforeSecondBlock &&
         IsInSecondBlock(text[1]);
}

void AppendCodes(std::string& out, std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out.append("\\x") += kDigits[byte / kDigits.size()];
    out += kDigits[byte % kDigits.size()];
  }
}

}  // namespace

std::string Visible(std::string_view text) {
  if (std::none_of(text.begin(), text.end(), MayBeControl)) return std::string(text);
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = Utf8Length(text);
    const std::string_view character = text.substr(0, length);
    IsControl(text, length) ? AppendCodes(out, character) : void(out.append(character));
    text.remove_prefix(length);
  }
  return out;
}

}  // namespace kav
