// A grid as screen readers find it: a table, cell by cell.
#pragma once

namespace kav {

/// From here on every grid is a table to screen readers. Further calls do nothing.
void OfferGridsToScreenReaders();

}  // namespace kav
