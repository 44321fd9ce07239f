// What is copied of a result, for other programs to read.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// The number `shown` without what groups its digits. Other texts stay as they are.
std::u16string PlainDigits(std::u16string_view shown);

/// A line and what it comes to, such as "2*3 = 6".
std::u16string LineAndResult(std::u16string_view line, std::u16string_view shown);

}  // namespace kav
