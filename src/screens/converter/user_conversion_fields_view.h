// The three fields of a conversion that the user defines, with their captions.
#pragma once

#include <QWidget>

#include "converter/user_conversions.h"
#include "screens/widgets/text_field.h"

namespace kav {

class UserConversionFieldsView final : public QWidget {
 public:
  UserConversionFieldsView();

  TypedConversion Typed() const;
  /// What is written into the disabled fields is shown from its beginning on, and cannot be undone
  /// once they are enabled.
  void Write(const TypedConversion& fields);
  /// Enables or disables the fields; their captions stay as they are.
  void SetEditable(bool isEditable);

  /// None leaves the focus where it is.
  void Focus(ConversionField field);

 private:
  void LayOut();

  TextField* source_;
  TextField* target_;
  TextField* rate_;
};

}  // namespace kav
