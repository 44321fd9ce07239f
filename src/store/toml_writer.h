// Writing a TOML document.
#pragma once

#include <string>

#include "store/toml_library.h"

namespace kav {

/// `root` as a document: values first, then the tables, each under its heading, all in the order of
/// their keys. Every value reads back as it is; how it was written (a hexadecimal integer, a long
/// string, an array of tables under headings) does not last. Recurses as deep as `root` is.
std::string PrintToml(const toml::table& root);

}  // namespace kav
