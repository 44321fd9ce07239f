#include "screens/macros/macro_fields_view.h"

#include <QGridLayout>
#include <QLabel>
#include <array>
#include <cstddef>

#include "common/number_text.h"
#include "macros/macros_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kFormulaLines = 4;

constexpr std::array kTypes{VariableType::X, VariableType::XY, VariableType::XYZ};

}  // namespace

MacroFieldsView::MacroFieldsView()
    : name_(new TextField(kMacroNameCaption)),
      type_(new ChoiceBox(kMacroTypeCaption)),
      formula_(new FormulaView(kFormulaLines)) {
  for (const VariableType type : kTypes) type_->addItem(ToQt(Widen(MacroTypeText(type))));
  formula_->setAccessibleName(ToQt(kFormulaName));
  OpenDoor(*formula_);
  LayOut();
}

void MacroFieldsView::LayOut() {
  auto* all = new QGridLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(new QLabel(ToQt(kMacroNameCaption)), 0, 0);
  all->addWidget(name_, 0, 1);
  all->addWidget(new QLabel(ToQt(kMacroTypeCaption)), 1, 0);
  all->addWidget(type_, 1, 1);
  all->addWidget(new QLabel(ToQt(MacroFormulaCaption(kLongestFormula))), 2, 0, 1, 2);
  all->addWidget(formula_, 3, 0, 1, 2);
  all->setColumnStretch(1, 1);
}

MacroFields MacroFieldsView::Typed() const {
  const int type = type_->currentIndex();
  return {name_->Text(),
          type < 0 ? std::nullopt : std::optional(kTypes[static_cast<std::size_t>(type)]),
          formula_->Line()};
}

void MacroFieldsView::Write(const MacroFields& fields) {
  name_->Write(fields.name);
  type_->setCurrentIndex(fields.type ? static_cast<int>(*fields.type) : -1);
  formula_->Write(fields.formula);
}

void MacroFieldsView::Focus(MacroField field) {
  switch (field) {
    case MacroField::Name:
      return name_->Focus();
    case MacroField::Type:
      return type_->setFocus();
    case MacroField::Formula:
      return formula_->setFocus();
    case MacroField::None:
      return;
  }
}

}  // namespace kav
