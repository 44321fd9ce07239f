// Reading and writing a TOML document. The library's parser takes long to compile, so that it is
// used in one place only. The library's own writer leaves keys without quotes that need them: one
// that holds an apostrophe or a line break comes out as it is, and the document does not read back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/toml_library.h"

namespace kav {

/// The document in `text`; nullopt if it is not TOML, not UTF-8, or built so that reading it takes
/// more stack, memory or time than settings need.
std::optional<toml::table> ReadToml(std::string_view text);

/// `root` as a document: values first, then the tables, each under its heading, all in the order of
/// their keys. Every value reads back as it is; its notation (a hexadecimal integer, a long string,
/// an array of tables under headings) does not last. Recurses as deeply as `root` is nested.
std::string PrintToml(const toml::table& root);

}  // namespace kav
