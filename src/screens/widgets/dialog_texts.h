// The captions of buttons that many dialogs have.
#pragma once

#include <string_view>

namespace kav {

inline constexpr std::u16string_view kOkCaption = u"OK";
inline constexpr std::u16string_view kCancelCaption = u"Cancel";
inline constexpr std::u16string_view kCloseCaption = u"Close";
inline constexpr std::u16string_view kSaveCaption = u"Save";
inline constexpr std::u16string_view kNewCaption = u"New";
inline constexpr std::u16string_view kEditCaption = u"Edit";
inline constexpr std::u16string_view kDeleteCaption = u"Delete";
inline constexpr std::u16string_view kMemoryCaption = u"MEM";

}  // namespace kav
