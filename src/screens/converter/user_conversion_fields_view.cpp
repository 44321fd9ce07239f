#include "screens/converter/user_conversion_fields_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "converter/converter_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// As many characters as a field holds and stays fluent.
constexpr int kLongestText = 1 << 16;

void WriteField(QLineEdit& field, const std::u16string& text) {
  const QString shown = ToQt(text);
  if (field.text() != shown) field.setText(shown);
  if (!field.isEnabled()) field.home(false);
}

}  // namespace

UserConversionFieldsView::UserConversionFieldsView() {
  source_->setAccessibleName(ToQt(kSourceUnitName));
  target_->setAccessibleName(ToQt(kTargetUnitName));
  rate_->setAccessibleName(ToQt(kConvertRateCaption));
  for (QLineEdit* field : {source_, target_, rate_}) field->setMaxLength(kLongestText);
  LayOut();
}

void UserConversionFieldsView::LayOut() {
  auto* names = new QHBoxLayout;
  names->addWidget(source_, 1);
  names->addWidget(new QLabel(ToQt(kConversionArrow)));
  names->addWidget(target_, 1);
  auto* rate = new QHBoxLayout;
  rate->addWidget(new QLabel(ToQt(kConvertRateCaption)));
  rate->addWidget(rate_, 1);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addLayout(names);
  all->addLayout(rate);
}

TypedConversion UserConversionFieldsView::Typed() const {
  return {source_->text().toStdU16String(), target_->text().toStdU16String(),
          rate_->text().toStdU16String()};
}

void UserConversionFieldsView::Write(const TypedConversion& fields) {
  WriteField(*source_, fields.source);
  WriteField(*target_, fields.target);
  WriteField(*rate_, fields.rate);
}

void UserConversionFieldsView::SetEditable(bool isEditable) {
  for (QLineEdit* field : {source_, target_, rate_}) field->setEnabled(isEditable);
}

void UserConversionFieldsView::Focus(ConversionField field) {
  const auto focus = [](QLineEdit& edit) {
    edit.setFocus();
    // Else all of it might be selected, and lost with the next key.
    edit.end(false);
  };
  switch (field) {
    case ConversionField::Source:
      return focus(*source_);
    case ConversionField::Target:
      return focus(*target_);
    case ConversionField::Rate:
      return focus(*rate_);
    case ConversionField::None:
      return;
  }
}

}  // namespace kav
