// The entries of menus as screen readers find them.
#pragma once

namespace kav {

/// From now on, entries of menus that have a status tip have it as their description too: the
/// toolkit gives them none.
void DescribeMenusToScreenReaders();

}  // namespace kav
