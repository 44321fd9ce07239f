// The widgets of the fields that rows are typed into, and of the total.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/widgets/line_view.h"
#include "screens/widgets/look.h"
#include "statistics/data_fields.h"
#include "statistics/statistics_keypad.h"

class QLabel;

namespace kav {

/// The fields with their labels, and the total with its label. The widgets are children of the
/// screen, which must outlive this.
class DataFieldsView {
 public:
  DataFieldsView(QWidget* screen, DataShape shape);

  /// From the top of the screen.
  const std::vector<DataField>& All() const { return all_; }
  /// The line of a field that the screen has.
  LineView& Line(DataField field) const;
  /// The field that a widget is; nullopt for any other widget.
  std::optional<DataField> FieldOf(const QObject* widget) const;

  TypedRow Typed() const;
  /// Undo in a field takes the change back in one step. A long number shows its first digits.
  void Show(const TypedRow& typed);

  /// Hides the total if it is nullopt.
  void ShowTotal(const std::optional<std::u16string>& total);

  void LayOut(const DialogUnits& units, const StatisticsPlaces& places);

 private:
  void Add(DataField field);
  void FitTotal();

  QWidget* screen_;
  std::vector<DataField> all_;
  std::vector<QLabel*> labels_;
  std::vector<LineView*> lines_;
  QLabel* totalLabel_;
  QLabel* total_;
};

/// Selects all of `line`, with the caret before it: so a long number shows its first digits.
void SelectFromEnd(QLineEdit& line);

/// The height of the text in a field and beside it, as a part of the field's height.
inline constexpr double kFieldText = 0.62;

}  // namespace kav
