#include "screens/converter/user_conversion_fields_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "converter/converter_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/qt_text.h"

namespace kav {
UserConversionFieldsView::UserConversionFieldsView()
    : source_(new TextField(kSourceUnitName)),
      target_(new TextField(kTargetUnitName)),
      rate_(new TextField(kConvertRateCaption)) {
  OpenDoor(*rate_, DoorKind::Number);
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
  return {source_->Text(), target_->Text(), rate_->Text()};
}

void UserConversionFieldsView::Write(const TypedConversion& fields) {
  source_->Write(fields.source);
  target_->Write(fields.target);
  rate_->Write(fields.rate);
}

void UserConversionFieldsView::Focus(ConversionField field) {
  switch (field) {
    case ConversionField::Source:
      return source_->Focus();
    case ConversionField::Target:
      return target_->Focus();
    case ConversionField::Rate:
      return rate_->Focus();
    case ConversionField::None:
      return;
  }
}

}  // namespace kav
