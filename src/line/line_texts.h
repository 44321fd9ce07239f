// What the user reads on the scientific screen, apart from the captions of the keypad's table.
#pragma once

#include <string>
#include <string_view>

namespace kav {

inline constexpr std::u16string_view kMemoryAdd = u"Memory +";
inline constexpr std::u16string_view kMemorySubtract = u"Memory -";
inline constexpr std::u16string_view kMemoryRecall = u"Memory Recall";
inline constexpr std::u16string_view kMemoryClear = u"Memory Clear";
inline constexpr std::u16string_view kRecallVariable = u"ReCall MemVar";
inline constexpr std::u16string_view kStoreVariable = u"Store MemVar";
inline constexpr std::u16string_view kConstants = u"Constants";

// The captions of the angle key and of the base key.
inline constexpr std::u16string_view kDegreesCaption = u"DEG";
inline constexpr std::u16string_view kRadiansCaption = u"RAD";
inline constexpr std::u16string_view kDecimalCaption = u"DEC";
inline constexpr std::u16string_view kHexadecimalCaption = u"HEX";
inline constexpr std::u16string_view kBinaryCaption = u"BIN";
inline constexpr std::u16string_view kOctalCaption = u"OCT";

inline constexpr std::u16string_view kBinary = u"Binary";
inline constexpr std::u16string_view kOctal = u"Octal";
inline constexpr std::u16string_view kDecimal = u"Decimal";
inline constexpr std::u16string_view kHexadecimal = u"Hexadecimal";

inline constexpr std::u16string_view kNoExpression = u"There is no expression.";

// In place of a memory or a constant that no double can hold.
inline constexpr std::u16string_view kRecalledIsTooLarge =
    u"The recalled number is beyond 1.79e308 in size, the largest that can be calculated with. "
    u"Nothing was inserted.";

inline constexpr std::u16string_view kExpressionName = u"Expression";
inline constexpr std::u16string_view kResultName = u"Result";
// Before the line that a failed one becomes by a small mend.
inline constexpr std::u16string_view kDidYouMean = u"Did you mean";

inline constexpr std::u16string_view kLiveResultName = u"Live result";

// The mark beside a result while the memory register is not 0, and what it stands for.
inline constexpr std::u16string_view kMemoryMark = u"M";
inline constexpr std::u16string_view kMemoryName = u"Memory";
inline std::u16string MemoryIs(std::u16string_view value) {
  return u"Memory: " + std::u16string(value);
}

}  // namespace kav
