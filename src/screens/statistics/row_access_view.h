// A table of rows as screen readers find it.
#pragma once

namespace kav {

/// Every RowTable that is made from here on is a table to screen readers, in which each question
/// takes the same time however many rows there are. Its children are the headings and then the
/// cells, row by row; counted are only the first kMostChildren, because a screen reader asks for
/// all that are. Those behind them are found by row and column or by their place, too. To use a
/// cell, a row or a heading is to click it. Further calls do nothing.
void OfferRowTablesToScreenReaders();

inline constexpr int kMostChildren = 1'500;

}  // namespace kav
