// The three fields of a conversion that the user defines, with their captions.
#pragma once

#include <QWidget>
#include <array>

#include "converter/user_conversions.h"
#include "screens/widgets/text_field.h"

namespace kav {

class UserConversionFieldsView final : public QWidget {
 public:
  UserConversionFieldsView();

  TypedConversion Typed() const;
  /// While the fields are disabled, they show the beginning of what is written, and it cannot be
  /// undone later.
  void Write(const TypedConversion& fields);
  /// To be enabled and disabled; the captions always stay enabled.
  std::array<QWidget*, 3> Inputs() const { return {source_, target_, rate_}; }
  /// None leaves the focus where it is.
  void Focus(ConversionField field);

 private:
  void LayOut();

  TextField* source_;
  TextField* target_;
  TextField* rate_;
};

}  // namespace kav
