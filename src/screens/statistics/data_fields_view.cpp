#include "screens/statistics/data_fields_view.h"

#include <QLabel>
#include <algorithm>
#include <array>

#include "screens/widgets/field_door.h"
#include "screens/widgets/key_screen.h"
#include "screens/widgets/qt_text.h"
#include "statistics/statistics_texts.h"

namespace kav {
namespace {

/// What a field is called and where its widgets are.
struct FieldRow {
  DataField field;
  std::u16string_view label;
  std::u16string_view name;  ///< for screen readers
  LinePlace StatisticsPlaces::*labelPlace;
  LinePlace StatisticsPlaces::*place;
};

constexpr std::array kFields{
    FieldRow{DataField::X, kXLabel, kXName, &StatisticsPlaces::xLabel, &StatisticsPlaces::x},
    FieldRow{DataField::Y, kYLabel, kYName, &StatisticsPlaces::yLabel, &StatisticsPlaces::y},
    FieldRow{DataField::Count, kCountLabel, kCountName, &StatisticsPlaces::countLabel,
             &StatisticsPlaces::count},
};

const FieldRow& RowOf(DataField field) {
  return *std::find_if(kFields.begin(), kFields.end(),
                       [field](const FieldRow& row) { return row.field == field; });
}

QLabel* MakeLabel(QWidget* parent, std::u16string_view text) {
  auto* label = new QLabel(ToQt(text), parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

SpacedText RoomOf(const QLabel& label) {
  return {label.text(), label.width()};
}

}  // namespace

DataFieldsView::DataFieldsView(QWidget* screen, DataShape shape)
    : screen_(screen), totalLabel_(MakeLabel(screen, kTotalLabel)), total_(MakeLabel(screen, {})) {
  for (const FieldRow& row : kFields) {
    if (row.field != DataField::Y || shape == DataShape::TwoVariables) Add(row.field);
  }
  total_->setAccessibleName(ToQt(kTotalName));
}

void DataFieldsView::Add(DataField field) {
  auto* line = new LineView(screen_);
  line->setAccessibleName(ToQt(RowOf(field).name));
  line->setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText |
                            Qt::ImhNoAutoUppercase);
  OpenDoor(*line, DoorKind::Number);
  QLabel* label = MakeLabel(screen_, RowOf(field).label);
  label->setBuddy(line);
  all_.push_back(field);
  labels_.push_back(label);
  lines_.push_back(line);
}

LineView& DataFieldsView::Line(DataField field) const {
  const auto index = std::find(all_.begin(), all_.end(), field) - all_.begin();
  return *lines_[static_cast<std::size_t>(index)];
}

std::optional<DataField> DataFieldsView::FieldOf(const QObject* widget) const {
  const auto line = std::find(lines_.begin(), lines_.end(), widget);
  if (line == lines_.end()) return std::nullopt;
  return all_[static_cast<std::size_t>(line - lines_.begin())];
}

TypedRow DataFieldsView::Typed() const {
  TypedRow typed;
  for (const DataField field : all_) typed.*TextOf(field) = TextOf(Line(field));
  return typed;
}

void DataFieldsView::Show(const TypedRow& typed) {
  for (const DataField field : all_) {
    const std::u16string& text = typed.*TextOf(field);
    if (text == TextOf(Line(field))) continue;
    Line(field).selectAll();
    Line(field).insert(ToQt(text));
    Line(field).home(false);
  }
}

void SelectFromEnd(QLineEdit& line) {
  const auto length = static_cast<int>(line.text().size());
  line.setSelection(length, -length);
}

void DataFieldsView::ShowTotal(const std::optional<std::u16string>& total) {
  for (QLabel* label : {totalLabel_, total_}) label->setVisible(total.has_value());
  if (!total || ToQt(*total) == total_->text()) return;
  total_->setText(ToQt(*total));
  total_->setAccessibleDescription(total_->text());
  // Before the first layout the label has no width to fit the total into.
  if (screen_->isVisible()) FitTotal();
}

void DataFieldsView::FitTotal() {
  // The largest totals fit only in smaller letters than those of their label.
  const int most = totalLabel_->font().pixelSize();
  total_->setFont(ScreenFont(FittingPixels({RoomOf(*total_)}, most, 1)));
}

void DataFieldsView::LayOut(const DialogUnits& units, const StatisticsPlaces& places) {
  const auto place = [&units](QWidget& widget, const LinePlace& where) {
    widget.setGeometry(units.Pixels(UnitsOf(where)));
  };
  place(*totalLabel_, places.totalLabel);
  place(*total_, places.total);
  std::vector<SpacedText> rooms{RoomOf(*totalLabel_)};
  for (std::size_t i = 0; i < all_.size(); ++i) {
    place(*labels_[i], places.*RowOf(all_[i]).labelPlace);
    place(*lines_[i], places.*RowOf(all_[i]).place);
    rooms.push_back(RoomOf(*labels_[i]));
    lines_[i]->SetTextHeight(qRound(lines_[i]->height() * kFieldText * TextShare()));
  }
  // One size for all labels.
  const int most = qRound(lines_.front()->height() * kFieldText * TextShare());
  const QFont font = ScreenFont(FittingPixels(rooms, most, 1));
  totalLabel_->setFont(font);
  for (QLabel* label : labels_) label->setFont(font);
  FitTotal();
}

}  // namespace kav
