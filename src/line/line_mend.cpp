#include "line/line_mend.h"

#include <algorithm>

#include "common/number_text.h"

namespace kav {

TextPlace WidenedPlace(std::string_view line, TextPlace place) {
  const std::size_t start = std::min(place.position, line.size());
  return {Widen(line.substr(0, start)).size(), Widen(line.substr(start, place.length)).size()};
}

}  // namespace kav
