// What the user reads in the display settings.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "common/number_text.h"

namespace kav {

inline constexpr std::u16string_view kDisplaySettingsTitle = u"Display Settings";

inline constexpr std::u16string_view kPagesName = u"Pages";
inline constexpr std::u16string_view kNormalPage = u"Normal";
inline constexpr std::u16string_view kMatrixPage = u"Matrix";
inline constexpr std::u16string_view kNormalGroup = u"Normal Display Formatting";
inline constexpr std::u16string_view kMatrixGroup = u"Matrix Display Formatting";

/// By the numbers of the display types.
inline constexpr std::array<std::u16string_view, 5> kDisplayTypeCaptions{
    u"Floating Point", u"Fixed Point", u"Scientific Notation", u"Currency-Punctuated at thousands",
    u"Engineering Notation"};
/// What numbers look like then, in the same order.
inline constexpr std::array<std::u16string_view, 5> kDisplayTypeHelp{
    u"all digits of a number, and no others", u"as many decimals as the precision says",
    u"one digit before the point, and a power of ten", u"commas between the thousands",
    u"a power of ten that is a multiple of three"};
inline constexpr std::u16string_view kRecommendedMark = u"(R)";
inline constexpr std::u16string_view kRecommendedMeaning = u", (R) = Recommend";

inline constexpr std::u16string_view kPrecisionCaption = u"Precision :";
inline constexpr std::u16string_view kExampleCaption = u"Example :";
inline constexpr std::u16string_view kColumnWidthCaption = u"Default Column Width :";
inline constexpr std::u16string_view kMatrixSizeCaption = u"Default Matrix Size :";
inline constexpr std::u16string_view kSizeSign = u"X";
inline constexpr std::u16string_view kAlignmentCaption = u"Text Align :";
inline constexpr std::array<std::u16string_view, 2> kAlignments{u"Left", u"Right"};

// The look of all windows.
inline constexpr std::u16string_view kColoursCaption = u"Colours :";
/// By the numbers of the choices.
inline constexpr std::array<std::u16string_view, 4> kColourChoiceNames{u"System", u"Light", u"Dark",
                                                                       u"High Contrast"};
inline constexpr std::u16string_view kLiveResultCaption = u"Live result";
inline constexpr std::u16string_view kLiveResultMeaning =
    u"Shows the result of a line while it is typed.";

// What a screen reader calls the boxes that have no caption of their own.
inline constexpr std::u16string_view kDefaultRowsName = u"Default Matrix Rows";
inline constexpr std::u16string_view kDefaultColumnsName = u"Default Matrix Columns";

/// An entry that is no whole number from `least` to `most`.
inline std::u16string NotInRange(std::u16string_view entry, int least, int most) {
  std::u16string text(entry);
  text += u" must be a whole number from ";
  text += Widen(PrintInteger(least));
  text += u" to ";
  text += Widen(PrintInteger(most));
  text += u'.';
  return text;
}
inline constexpr std::u16string_view kPrecisionEntry = u"The precision";
inline constexpr std::u16string_view kColumnWidthEntry = u"The column width";

}  // namespace kav
