// Every source includes the standard headers that it uses, by itself or by way of a header of ours:
// what another header of the library happens to bring along differs between libraries and their
// versions, and what another source of the same compilation includes must not count.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/source_files.h"

namespace kav::standard_headers_test {
namespace {

using test::IncludesIn;
using test::SourceFiles;
using test::TextOf;

/// A header and the names of namespace std that it declares, as far as the sources use them. Of
/// names that several headers declare, the table has the one that this house includes for them.
struct Header {
  std::string_view name;
  std::string_view declares;
};

const std::vector<Header> kHeaders{
    {"algorithm",
     "all_of any_of clamp copy copy_if copy_n count count_if equal find find_if find_if_not "
     "for_each "
     "for_each_n is_sorted lower_bound max max_element min minmax mismatch none_of ranges remove "
     "remove_if replace replace_copy_if replace_if reverse search sort stable_partition "
     "swap_ranges "
     "transform unique"},
    {"array", "array"},
    {"bit", "bit_cast bit_width countl_one countr_one"},
    {"bitset", "bitset"},
    {"charconv", "chars_format from_chars to_chars"},
    {"chrono", "chrono"},
    {"clocale", "setlocale"},
    {"cmath",
     "abs acos asin atan ceil copysign cos cosh exp fabs floor fma fmod frexp hypot isfinite "
     "isnan ldexp log log10 lround modf nextafter pow round signbit sin sinh sqrt tan tanh trunc"},
    {"complex", "complex"},
    {"concepts", "invocable"},
    {"cstddef", "ptrdiff_t size_t"},
    {"cstdint", "int16_t int32_t int64_t uint16_t uint32_t uint64_t uint8_t uintmax_t"},
    {"cstdio", "fwrite getchar"},
    {"cstdlib", "abort getenv"},
    {"cstring", "memchr memcpy strerror"},
    {"deque", "deque"},
    {"filesystem", "filesystem"},
    {"fstream", "ifstream ios streamsize"},
    {"functional", "function greater less"},
    {"initializer_list", "initializer_list"},
    {"iterator", "back_inserter make_reverse_iterator"},
    {"limits", "numeric_limits"},
    {"map", "map"},
    {"memory", "make_shared make_unique make_unique_for_overwrite unique_ptr"},
    {"memory_resource", "pmr"},
    {"new", "bad_alloc"},
    {"numeric", "accumulate iota midpoint"},
    {"optional", "nullopt nullopt_t optional"},
    {"set", "set"},
    {"span", "span"},
    {"string", "erase string to_string u16string"},
    {"string_view", "string_view string_view_literals u16string_view"},
    {"system_error", "errc error_code"},
    {"thread", "this_thread"},
    {"utility", "as_const declval exchange forward move pair swap"},
    {"variant", "get_if holds_alternative in_place_index variant visit"},
    {"vector", "erase_if vector"},
};

bool IsOfName(char c) {
  return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// The names that a text uses of namespace std, each once. Comments count: none of ours has such.
std::set<std::string> StandardNamesIn(const std::string& text) {
  constexpr std::string_view kPrefix = "std::";
  std::set<std::string> names;
  for (std::size_t at = text.find(kPrefix); at != std::string::npos; at = text.find(kPrefix, at)) {
    at += kPrefix.size();
    std::size_t end = at;
    while (end < text.size() && IsOfName(text[end])) ++end;
    names.insert(text.substr(at, end - at));
  }
  return names;
}

/// The header for a name of namespace std; empty if the table does not know it.
std::string HeaderFor(const std::string& name) {
  for (const auto& header : kHeaders) {
    std::istringstream declared{std::string(header.declares)};
    for (std::string word; declared >> word;) {
      if (word == name) return std::string(header.name);
    }
  }
  return {};
}

/// The standard headers that a file includes, itself or by way of headers of ours.
const std::set<std::string>& HeadersOf(const std::string& file,
                                       std::map<std::string, std::set<std::string>>& known) {
  const auto [entry, isNew] = known.try_emplace(file);
  if (!isNew) return entry->second;
  std::set<std::string> headers;
  for (const auto& include : IncludesIn(TextOf(file))) {
    if (include.isOurs)
      headers.merge(std::set(HeadersOf(include.name, known)));
    else
      headers.insert(include.name);
  }
  return known[file] = headers;
}

TEST(StandardHeaders, WhoeverUsesANameOfTheLibraryIncludesItsHeader) {
  std::map<std::string, std::set<std::string>> known;
  std::size_t checked = 0;
  for (const auto& source : SourceFiles()) {
    const auto& headers = HeadersOf(source.generic_string(), known);
    for (const auto& name : StandardNamesIn(TextOf(source))) {
      const std::string header = HeaderFor(name);
      EXPECT_NE(header, "") << source << " uses std::" << name
                            << ", which kHeaders above does not know";
      EXPECT_TRUE(headers.contains(header))
          << source << " uses std::" << name << " without <" << header << ">";
      ++checked;
    }
  }
  EXPECT_GT(checked, 1000U) << "the sources were not found";
}

TEST(StandardHeaders, ANameIsReadToItsEnd) {
  EXPECT_EQ(StandardNamesIn("std::u16string_view x = std::move(y); std::chrono::seconds(std::max)"),
            (std::set<std::string>{"chrono", "max", "move", "u16string_view"}));
  EXPECT_EQ(HeaderFor("u16string_view"), "string_view");
  EXPECT_EQ(HeaderFor("u16"), "");
}

}  // namespace
}  // namespace kav::standard_headers_test
