// What the user reads about units and their conversions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "common/number_text.h"
#include "settings/editor_button.h"

namespace kav {

// The text of a conversion, made of the names of its units.
inline constexpr std::u16string_view kConversionArrow = u"->";

inline std::u16string ConversionText(std::u16string_view source, std::u16string_view target) {
  return std::u16string(source).append(u" -> ").append(target);
}

// The captions of the editor of such conversions.
inline constexpr std::u16string_view kUserConversionsTitle = u"Edit Unit Convert";
inline constexpr std::u16string_view kConvertRateCaption = u"Rate";
inline constexpr std::u16string_view kDeleteConversionQuestion =
    u"Are you sure you want to delete the selected unit convert?";

// Accessible names of the fields and the list, which have no captions.
inline constexpr std::u16string_view kSourceUnitName = u"Source unit";
inline constexpr std::u16string_view kTargetUnitName = u"Target unit";
inline constexpr std::u16string_view kUserConversionsName = u"Unit converts";

// Why a conversion is not saved.
inline constexpr std::u16string_view kUnitNameIsEmpty = u"Please, Input a unit name";
inline constexpr std::u16string_view kUnitNameHasArrow = u"Invalid unit name.";
inline constexpr std::u16string_view kConvertRateIsInvalid = u"Invalid convert rate";

inline std::u16string MaximumOfUserConversions(int most) {
  return u"Maximum of user-define unit convert is " + Widen(PrintInteger(most));
}

// What the buttons of the editor do.
inline constexpr std::array kConversionButtonHelp{
    EditorButtonHelp{EditorButton::New, u"begin a new conversion"},
    EditorButtonHelp{EditorButton::Edit, u"change the selected conversion"},
    EditorButtonHelp{EditorButton::Delete, u"delete the selected conversion"},
    EditorButtonHelp{EditorButton::Save, u"store the conversion as it stands in the fields"},
    EditorButtonHelp{EditorButton::Cancel, u"give up what was changed in the fields"},
    EditorButtonHelp{EditorButton::Memory, u"take the rate from a memory variable"},
};

// What a deletion does to the rates of the other conversions.
inline constexpr std::u16string_view kRatesWillLoseDigits =
    u"All rates will be stored with six decimals. These will lose digits:";

inline std::u16string AndMoreConversions(std::size_t more) {
  return u"and " + Widen(PrintInteger(static_cast<std::int64_t>(more))) + u" more";
}

// The captions of the converter. The arrow swaps the units.
inline constexpr std::u16string_view kConverterTitle = u"Unit Converter";
inline constexpr std::u16string_view kInputCaption = u"Input";
inline constexpr std::u16string_view kOutputCaption = u"Output";
inline constexpr std::u16string_view kSwapCaption = u"↕";

// What its buttons do.
inline constexpr std::u16string_view kSwapHelp = u"exchange the input unit and the output unit";
inline constexpr std::u16string_view kEditConversionsHelp =
    u"write, change and delete conversions of your own";
inline constexpr std::u16string_view kStoreOutputHelp = u"store the output in a memory variable";

// Accessible names of its parts, which have no captions.
inline constexpr std::u16string_view kCategoryName = u"Category";
inline constexpr std::u16string_view kInputValueName = u"Input value";
inline constexpr std::u16string_view kInputUnitName = u"Input unit";
inline constexpr std::u16string_view kOutputUnitName = u"Output unit";
inline constexpr std::u16string_view kConversionName = u"Conversion";
inline constexpr std::u16string_view kConverterResultName = u"Result";
inline constexpr std::u16string_view kSwapName = u"Swap units";
inline constexpr std::u16string_view kValueIsNoNumber = u"Not a number";

inline constexpr std::u16string_view kNoUserConversionStored =
    u"Not exist saved user-define unit convert";
inline constexpr std::u16string_view kConvertingFailed = u"Converting value is error";

}  // namespace kav
