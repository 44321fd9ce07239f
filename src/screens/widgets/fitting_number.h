// Numbers in lists, in places that may be too narrow for them.
#pragma once

#include <QFontMetrics>
#include <QString>

namespace kav {

/// `text`, which ends with a number, in at most `room` pixels of that font: if it is wider, digits
/// before the exponent give way to an ellipsis. The exponent is what must not be missed.
QString FittingNumber(const QString& text, const QFontMetrics& metrics, int room);

}  // namespace kav
