#include "store/toml_text.h"

#include <algorithm>
#include <cstddef>

#include "common/ascii.h"

namespace kav {
namespace {

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

/// The letter that stands for `c` after a backslash; 0 if there is none.
char EscapeLetter(char c) {
  switch (c) {
    case '\b':
      return 'b';
    case '\t':
      return 't';
    case '\n':
      return 'n';
    case '\f':
      return 'f';
    case '\r':
      return 'r';
    case '"':
    case '\\':
      return c;
    default:
      return 0;
  }
}

void AppendEscaped(std::string& out, char c) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  out += '\\';
  if (const char letter = EscapeLetter(c)) {
    out += letter;
    return;
  }
  const auto byte = static_cast<unsigned char>(c);
  out.append("u00").append(1, kDigits[byte >> 4U]).append(1, kDigits[byte & 0xFU]);
}

bool IsBareKeyCharacter(char c) {
  return IsLetter(c) || IsDigit(c) || c == '-' || c == '_';
}

/// The length of the string literal of any of the four kinds that opens `toml`; that of all of
/// `toml` if the string does not end. A one-line string that runs into the end of its line is not
/// TOML, so it does not matter here.
std::size_t StringLength(std::string_view toml) {
  const char quote = toml.front();
  const std::string_view three = quote == '"' ? R"(""")" : "'''";
  const bool isLong = toml.starts_with(three);
  const std::string_view end = isLong ? three : three.substr(0, 1);
  std::size_t i = end.size();
  while (i < toml.size() && !toml.substr(i).starts_with(end)) {
    i += quote == '"' && toml[i] == '\\' ? 2 : 1;
  }
  i += end.size();
  // A long string may end in up to two quotes of its own before the three that close it.
  for (int own = 0; isLong && own < 2 && i < toml.size() && toml[i] == quote; ++own) ++i;
  return std::min(i, toml.size());
}

/// The length of what counts as one piece at the start of `toml`: a string, a comment, a character.
std::size_t PieceLength(std::string_view toml) {
  if (toml.front() == '"' || toml.front() == '\'') return StringLength(toml);
  if (toml.front() == '#') return std::min(toml.find('\n'), toml.size());
  return 1;
}

}  // namespace

void AppendTomlString(std::string& out, std::string_view text) {
  out += '"';
  for (const char c : text) {
    if (IsControl(c) || c == '"' || c == '\\') {
      AppendEscaped(out, c);
    } else {
      out += c;
    }
  }
  out += '"';
}

void AppendTomlKey(std::string& out, std::string_view key) {
  if (!key.empty() && std::all_of(key.begin(), key.end(), IsBareKeyCharacter)) {
    out += key;
  } else {
    AppendTomlString(out, key);
  }
}

bool IsModestToml(std::string_view toml) {
  int marks = 0;
  int dots = 0;
  for (; !toml.empty(); toml.remove_prefix(PieceLength(toml))) {
    switch (toml.front()) {
      case '.':
        ++marks;
        ++dots;
        break;
      case '=':
      case ',':
      case '[':
      case '{':
        ++marks;
        dots = 0;
        break;
      case ']':
      case '}':
      case '\n':
        dots = 0;
        break;
      default:
        break;
    }
    if (dots > kMostDotsInAKey || marks > kMostTomlMarks) return false;
  }
  return true;
}

}  // namespace kav
