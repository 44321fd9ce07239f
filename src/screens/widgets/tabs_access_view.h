// A strip of tabs, as screen readers find it.
#pragma once

class QAccessibleInterface;
class QTabBar;

namespace kav {

/// Called as the strip is, whatever tab is chosen, with the chosen tab as its text. The toolkit's
/// own takes the chosen tab for its name, and does not tell which tab is chosen.
QAccessibleInterface* MakeTabsAccess(QTabBar& tabs);

}  // namespace kav
