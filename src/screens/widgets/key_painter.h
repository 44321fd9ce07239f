// How keys look, those of the keypad as well as the buttons of dialogs.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QAbstractButton;
class QPainter;

namespace kav {

/// The colours of a key that can be pressed and is not.
struct KeyColours {
  QColor background;
  QColor text;
};

/// What a disabled, held or touched key has instead.
KeyColours ColoursNow(const QAbstractButton& key, const KeyColours& colours);

/// Paints all of `key`, its caption in `font`.
void PaintKey(QPainter& painter, const QAbstractButton& key, const KeyColours& colours,
              const QFont& font);
/// The same with another text in place of the caption.
void PaintKey(QPainter& painter, const QAbstractButton& key, const KeyColours& colours,
              const QFont& font, const QString& caption);

}  // namespace kav
