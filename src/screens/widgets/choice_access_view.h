// A list that drops down, as screen readers find it.
#pragma once

class QAccessibleInterface;
class QComboBox;

namespace kav {

/// Called as the list is, whatever is chosen, with the chosen entry as its text. The toolkit's own
/// takes the chosen entry for its name. A writer's setText chooses the entry of that text.
QAccessibleInterface* MakeChoiceAccess(QComboBox& box);

}  // namespace kav
