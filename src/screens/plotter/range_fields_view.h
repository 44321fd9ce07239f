// The four fields of the plot range as widgets.
#pragma once

#include <QFontMetrics>
#include <QString>
#include <array>
#include <functional>
#include <string>

#include "plotter/range_fields.h"
#include "screens/widgets/look.h"

class QLabel;
class QLineEdit;
class QWidget;

namespace kav {

/// `number` as far as it has room in `width` pixels: with dots for its last digits, but with its
/// exponent.
QString HeadAndExponent(const QString& number, const QFontMetrics& letters, int width);

/// The fields and their captions. The widgets are children of the screen.
class RangeFieldsView {
 public:
  /// `onEdited` is called with the new text when the user changes a field.
  RangeFieldsView(QWidget* screen, const std::function<void(RangeField, std::u16string)>& onEdited);

  void Show(const RangeTexts& texts);
  void LayOut(const DialogUnits& units);
  /// The height of letters, in pixels, at which no caption is cut; at most `most`.
  int FittingText(int most) const;
  void SetFont(const QFont& font);

  QLineEdit& Of(RangeField field) const { return *fields_[IndexOf(field)]; }
  /// Whether `widget` is one of the fields.
  bool Has(const QWidget* widget) const;
  /// Gives a field the focus and selects its text.
  void Enter(RangeField field) const;

 private:
  std::array<QLabel*, kRangeFields.size()> captions_{};
  std::array<QLineEdit*, kRangeFields.size()> fields_{};
};

}  // namespace kav
