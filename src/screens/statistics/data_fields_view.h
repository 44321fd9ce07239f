// The fields that rows are typed into, and the total beside them, as widgets.
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

/// Fields with their labels, and the label and the number of the total: all of them children of the
/// screen, which must outlive this.
class DataFieldsView {
 public:
  DataFieldsView(QWidget* screen, DataShape shape);

  /// From the top of the screen.
  const std::vector<DataField>& All() const { return all_; }
  /// That of a field that the screen has.
  LineView& Line(DataField field) const;
  /// The field that a widget is; nullopt for any other widget.
  std::optional<DataField> FieldOf(const QObject* widget) const;

  TypedRow Typed() const;
  /// What changes is one step for the undo of a field.
  void Show(const TypedRow& typed);

  /// nullopt: there is no room for it.
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

/// Of the height of a field: that of its text, and of texts beside it.
inline constexpr double kFieldText = 0.62;

}  // namespace kav
