#include "screens/widgets/shown_text_access_view.h"

#include <algorithm>

namespace kav {

QString ShownTextAccess::text(int from, int to) const {
  const QString all = text_();
  const int end = to < 0 ? static_cast<int>(all.size()) : to;
  return all.mid(std::max(from, 0), std::max(end - std::max(from, 0), 0));
}

QString ShownTextAccess::attributes(int, int* from, int* to) const {
  *from = 0;
  *to = characterCount();
  return {};
}

void ShownTextAccess::selection(int, int* from, int* to) const {
  *from = 0;
  *to = 0;
}

}  // namespace kav
