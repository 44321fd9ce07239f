#include "screens/widgets/fitting_number.h"

namespace kav {
namespace {

/// Where the exponent at the end of `text` begins; its end if there is none.
qsizetype ExponentOf(const QString& text) {
  qsizetype at = text.size();
  while (at > 0 && text[at - 1].isDigit()) --at;
  if (at == text.size()) return at;
  if (at > 0 && (text[at - 1] == u'-' || text[at - 1] == u'+')) --at;
  const bool hasMark = at > 0 && (text[at - 1] == u'e' || text[at - 1] == u'E');
  return hasMark ? at - 1 : text.size();
}

}  // namespace

QString FittingNumber(const QString& text, const QFontMetrics& metrics, int room) {
  if (metrics.horizontalAdvance(text) <= room) return text;
  const qsizetype exponent = ExponentOf(text);
  const QString tail = text.mid(exponent);
  const int forDigits = room - metrics.horizontalAdvance(tail);
  return metrics.elidedText(text.left(exponent), Qt::ElideRight, forDigits) + tail;
}

}  // namespace kav
