// The three fields of a macro, with their captions.
#pragma once

#include <QWidget>
#include <array>

#include "macros/macro_editor_model.h"
#include "screens/widgets/choice_box.h"
#include "screens/widgets/formula_view.h"
#include "screens/widgets/text_field.h"

namespace kav {

class MacroFieldsView final : public QWidget {
 public:
  MacroFieldsView();

  MacroFields Typed() const;
  /// While the fields are disabled, they show the beginning of what is written, and it cannot be
  /// undone later.
  void Write(const MacroFields& fields);
  /// To be enabled and disabled; the captions always stay enabled.
  std::array<QWidget*, 3> Inputs() const { return {name_, type_, formula_}; }
  /// None leaves the focus where it is.
  void Focus(MacroField field);

 private:
  void LayOut();

  TextField* name_;
  ChoiceBox* type_;
  FormulaView* formula_;
};

}  // namespace kav
