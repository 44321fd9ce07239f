// Writing a TOML document. The library's own writer leaves keys without quotes that need them: one
// that holds an apostrophe or a line break comes out as it is, and the document does not read back.
#pragma once

#include <string>

#include "store/toml_library.h"

namespace kav {

/// `root` as a document: values first, then the tables, each under its heading, all in the order of
/// their keys. Every value reads back as it is; its notation (a hexadecimal integer, a long string,
/// an array of tables under headings) does not last. Recurses as deeply as `root` is nested.
std::string PrintToml(const toml::table& root);

}  // namespace kav
