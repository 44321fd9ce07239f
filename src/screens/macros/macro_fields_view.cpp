#include "screens/macros/macro_fields_view.h"

#include <QGridLayout>
#include <QLabel>
#include <array>
#include <cstddef>

#include "common/number_text.h"
#include "macros/macros_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kFormulaLines = 4;

/// As many characters as the field holds and stays fluent.
constexpr int kLongestName = 1 << 16;

constexpr std::array kTypes{VariableType::X, VariableType::XY, VariableType::XYZ};

}  // namespace

MacroFieldsView::MacroFieldsView() : formula_(new FormulaView(kFormulaLines)) {
  name_->setMaxLength(kLongestName);
  for (const VariableType type : kTypes) type_->addItem(ToQt(Widen(MacroTypeText(type))));
  name_->setAccessibleName(ToQt(kMacroNameCaption));
  type_->setAccessibleName(ToQt(kMacroTypeCaption));
  formula_->setAccessibleName(ToQt(kFormulaName));
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
  return {name_->text().toStdU16String(),
          type < 0 ? std::nullopt : std::optional(kTypes[static_cast<std::size_t>(type)]),
          formula_->Line()};
}

void MacroFieldsView::Write(const MacroFields& fields) {
  const QString name = ToQt(fields.name);
  if (name_->text() != name) name_->setText(name);
  if (!name_->isEnabled()) name_->home(false);
  type_->setCurrentIndex(fields.type ? static_cast<int>(*fields.type) : -1);
  formula_->Write(fields.formula);
}

void MacroFieldsView::SetEditable(bool isEditable) {
  for (QWidget* field : std::initializer_list<QWidget*>{name_, type_, formula_}) {
    field->setEnabled(isEditable);
  }
}

void MacroFieldsView::Focus(MacroField field) {
  switch (field) {
    case MacroField::Name:
      name_->setFocus();
      // Else all of it might be selected, and lost with the next key.
      return name_->end(false);
    case MacroField::Type:
      return type_->setFocus();
    case MacroField::Formula:
      return formula_->setFocus();
    case MacroField::None:
      return;
  }
}

}  // namespace kav
