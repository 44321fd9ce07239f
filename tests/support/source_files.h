// The sources of the program as texts, for tests of how they are written.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kav::test {

/// The folder src of the checkout.
std::filesystem::path SourceFolder();

/// Every source and header below src, relative to it, in order.
std::vector<std::filesystem::path> SourceFiles();

/// All of a file, given relative to src; empty if there is none.
std::string TextOf(const std::filesystem::path& relative);

/// An `#include` line: what it names, and whether in quotes (ours) or brackets (installed).
struct Include {
  std::string name;
  bool isOurs;
};

/// Those of a text, from its first to its last.
std::vector<Include> IncludesIn(const std::string& text);

}  // namespace kav::test
