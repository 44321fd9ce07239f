#include "memory/constants_table.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <optional>

#include "common/ascii.h"
#include "common/number_text.h"
#include "memory/memory_texts.h"
#include "settings/atomic_file.h"

namespace kav {
namespace {

/// The folder of the installed data, relative to that of the executable, so that an installation
/// may stand anywhere.
constexpr std::string_view kInstalledData = "share/kav-calculator";

std::u16string Characters(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char byte) { return static_cast<char16_t>(static_cast<unsigned char>(byte)); });
  return text;
}

/// The group in `text`, which ends before the ']'.
std::string_view GroupIn(std::string_view text) {
  const std::size_t open = text.rfind('[');
  return open == std::string_view::npos ? std::string_view() : text.substr(open + 1);
}

std::optional<Constant> ParseRecord(std::string_view record) {
  const std::size_t bracket = record.find(']');
  const std::size_t equals = record.find('=');
  if (bracket == std::string_view::npos || equals == std::string_view::npos) return std::nullopt;
  const bool hasName = bracket + 1 < equals;
  const bool hasValue = equals + 1 < record.size();
  if (!hasName || !hasValue) return std::nullopt;
  return Constant{Characters(GroupIn(record.substr(0, bracket))),
                  Characters(record.substr(bracket + 1, equals - bracket - 1)),
                  Characters(record.substr(equals + 1))};
}

/// Lower case of the letters up to U+00FF, which are all that a byte of the file can be.
char16_t Folded(char16_t c) {
  const bool isAccented = c >= u'\u00C0' && c <= u'\u00DE' && c != u'\u00D7';
  return isAccented ? static_cast<char16_t>(c + 0x20) : LowerCase(c);
}

bool Contains(std::u16string_view text, std::u16string_view word) {
  const auto isEqual = [](char16_t a, char16_t b) { return Folded(a) == Folded(b); };
  return word.empty() ||
         std::search(text.begin(), text.end(), word.begin(), word.end(), isEqual) != text.end();
}

std::string PathIn(std::string_view folder) {
  std::string path(folder);
  if (!path.empty() && !path.ends_with('/')) path += '/';
  return path.append(kConstantsFile);
}

}  // namespace

std::vector<Constant> ParseConstants(std::string_view bytes) {
  std::vector<Constant> rows;
  for (std::size_t end = bytes.find(';'); end != std::string_view::npos; end = bytes.find(';')) {
    if (auto row = ParseRecord(bytes.substr(0, end))) rows.push_back(*std::move(row));
    bytes.remove_prefix(end + 1);
  }
  return rows;
}

bool Matches(const Constant& constant, std::u16string_view filter) {
  while (!filter.empty()) {
    const std::u16string_view word = filter.substr(0, filter.find(u' '));
    filter.remove_prefix(std::min(word.size() + 1, filter.size()));
    const bool occurs = Contains(constant.group, word) || Contains(constant.name, word) ||
                        Contains(constant.value, word);
    if (!occurs) return false;
  }
  return true;
}

std::u16string_view SymbolOf(const Constant& constant) {
  const std::u16string_view name = constant.name;
  const std::u16string_view withoutUnit = TrimBlanks(name.substr(0, name.find(u" (")));
  return withoutUnit.substr(withoutUnit.rfind(u' ') + 1);
}

SymbolMatch MatchSymbol(const Constant& constant, std::u16string_view filter) {
  const std::u16string_view wanted = TrimBlanks(filter);
  const std::u16string_view symbol = SymbolOf(constant);
  if (wanted == symbol) return SymbolMatch::Exact;
  const bool isSame = wanted.size() == symbol.size() && Contains(symbol, wanted);
  return isSame ? SymbolMatch::InAnotherCase : SymbolMatch::None;
}

Expected<std::vector<Constant>, std::u16string> LoadConstants(
    const std::vector<std::string>& folders) {
  for (const std::string& folder : folders) {
    const std::string path = PathIn(folder);
    const auto bytes = ReadWholeFile(path, kLargestConstantsFile);
    if (bytes) return ParseConstants(*bytes);
    if (bytes.error() == FileError::TooLarge) return ConstantsAreTooLarge(path);
  }
  return ConstantsNotFound(PathIn(folders.empty() ? "" : folders.front()));
}

std::vector<std::string> ConstantsFolders() {
  std::array<char, PATH_MAX> executable{};
  const ssize_t length = readlink("/proc/self/exe", executable.data(), executable.size());
  if (length <= 0) return {};
  const std::string_view path(executable.data(), static_cast<std::size_t>(length));
  const std::string folder(path.substr(0, std::max(path.rfind('/'), std::size_t{1})));
  return {folder, folder.substr(0, folder.rfind('/') + 1).append(kInstalledData)};
}

}  // namespace kav
