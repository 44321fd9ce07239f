// The three fields of a macro, with their captions.
#pragma once

#include <QComboBox>
#include <QWidget>

#include "macros/macro_editor_model.h"
#include "screens/widgets/formula_view.h"
#include "screens/widgets/text_field.h"

namespace kav {

class MacroFieldsView final : public QWidget {
 public:
  MacroFieldsView();

  MacroFields Typed() const;
  /// What is written into the disabled fields is shown from its beginning on, and cannot be undone
  /// once they are enabled.
  void Write(const MacroFields& fields);
  /// Enables or disables the fields; their captions stay as they are.
  void SetEditable(bool isEditable);

  /// None leaves the focus where it is.
  void Focus(MacroField field);

 private:
  void LayOut();

  TextField* name_;
  QComboBox* type_ = new QComboBox;
  FormulaView* formula_;
};

}  // namespace kav
