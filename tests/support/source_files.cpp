#include "support/source_files.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string_view>

namespace kav::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBlanks = " \t";

/// Takes blanks and then `word` off the front of `line`; false if something else stands there.
bool Take(std::string_view& line, std::string_view word) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  if (!line.starts_with(word)) return false;
  line.remove_prefix(word.size());
  return true;
}

std::optional<Include> IncludeOf(std::string_view line) {
  if (!Take(line, "#") || !Take(line, "include")) return std::nullopt;
  const bool isOurs = Take(line, "\"");
  if (!isOurs && !Take(line, "<")) return std::nullopt;
  const std::size_t end = line.find(isOurs ? '"' : '>');
  if (end == std::string_view::npos) return std::nullopt;
  return Include{std::string(line.substr(0, end)), isOurs};
}

}  // namespace

fs::path SourceFolder() {
  return fs::path(KAV_SOURCE_FOLDER) / "src";
}

std::vector<fs::path> SourceFiles() {
  std::vector<fs::path> sources;
  for (const auto& entry : fs::recursive_directory_iterator(SourceFolder())) {
    const auto extension = entry.path().extension();
    if (extension == ".h" || extension == ".cpp") {
      sources.push_back(entry.path().lexically_relative(SourceFolder()));
    }
  }
  std::sort(sources.begin(), sources.end());
  return sources;
}

std::string TextOf(const fs::path& relative) {
  std::ifstream file(SourceFolder() / relative, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<Include> IncludesIn(const std::string& text) {
  std::vector<Include> includes;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (auto include = IncludeOf(line)) includes.push_back(*std::move(include));
  }
  return includes;
}

}  // namespace kav::test
