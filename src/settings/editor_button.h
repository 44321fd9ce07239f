// The buttons of the editors of stored lists.
#pragma once

#include <string_view>

namespace kav {

/// All editors have those up to Cancel; the others help to fill in the fields.
enum class EditorButton { New, Edit, Delete, Close, Save, Cancel, Memory, Functions, Variables };

/// What a button does, for tips and screen readers.
struct EditorButtonHelp {
  EditorButton button;
  std::u16string_view text;
};

}  // namespace kav
