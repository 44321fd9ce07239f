// A grid as screen readers find it: a table, cell by cell.
#pragma once

#include <QString>

#include "grid/grid_model.h"

namespace kav {

class CGridCtrl;

/// From here on every grid is a table to a screen reader. To be called again does nothing.
void OfferGridsToScreenReaders();

// What a screen reader is to know of, after it has happened.
void TellShape(CGridCtrl& grid);
void TellFocus(CGridCtrl& grid);  ///< the cell at which keys are, if the grid has them
void TellText(CGridCtrl& grid, GridCell cell);

/// Where a cell is, by the texts of its headers.
QString NameOfPlace(const CGridCtrl& grid, GridCell cell);

}  // namespace kav
