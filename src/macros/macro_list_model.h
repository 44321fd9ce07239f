// The list of all macros, one of which may be selected.
#pragma once

#include "macros/macro_saving.h"
#include "settings/stored_list.h"

namespace kav {

using MacroListModel = StoredList<MacroTraits>;

}  // namespace kav
