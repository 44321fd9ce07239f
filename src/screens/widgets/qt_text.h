// Texts of ours, as the toolkit takes them.
#pragma once

#include <QString>
#include <string_view>

namespace kav {

inline QString ToQt(std::u16string_view text) {
  return QStringView(text).toString();
}

}  // namespace kav
