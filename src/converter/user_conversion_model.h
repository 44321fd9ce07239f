// The editor of the user's own conversions: the list of all, and the fields of the one that is
// looked at or edited.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "converter/converter_texts.h"
#include "converter/user_conversions.h"
#include "settings/stored_list_editor.h"

namespace kav {

/// The conversions as an editor's list, see settings/stored_list_editor.h.
struct UserConversionEditorTraits : UserConversionTraits {
  using Fields = TypedConversion;

  static constexpr ConversionField kFirstOfNew = ConversionField::Source;
  static constexpr ConversionField kFirstOfEdited = ConversionField::Rate;
  static constexpr std::u16string_view kDeleteQuestion = kDeleteConversionQuestion;
  static constexpr const auto& kButtonHelp = kConversionButtonHelp;
  static constexpr bool kKeepsListButtons = false;
  /// Texts too long for any field are cut, with an ellipsis at the end.
  static TypedConversion FieldsOf(const UserConversion& conversion);
  static TypedConversion FieldsToEdit(const UserConversion& conversion) {
    return FieldsOf(conversion);
  }
  /// The same as for all, except that a comma in the rate that could be a decimal one is named.
  static Expected<UserConversion, ConversionRefusal> Check(
      const TypedConversion& typed, const std::vector<UserConversion>& others);
  static TypedConversion TypedOf(TypedConversion fields,
                                 const std::optional<StoredIdentity>& edited);
};

class UserConversionModel : public StoredListEditor<UserConversionEditorTraits> {
 public:
  using StoredListEditor::StoredListEditor;

  /// Which rates will lose digits by Delete, to be told with its question; empty if none will.
  std::u16string DeleteWarning() const;
  /// Replaces the rate. No effect unless editing.
  void TakeRate(std::u16string_view text);
};

}  // namespace kav
