// A grid as screen readers find it: a table, cell by cell.
#pragma once

namespace kav {

/// Every grid that is made from here on is a table to screen readers: one that listens asks for the
/// grid while it is being made. Further calls do nothing.
void OfferGridsToScreenReaders();

}  // namespace kav
