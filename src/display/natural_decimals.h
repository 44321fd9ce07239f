// How many decimals a number is shown with: all that were meant, none that binary arithmetic added.
#pragma once

namespace kav {

/// How many decimals (0 to 13) show `value` without representation noise. `value` is finite and of
/// a magnitude from 1e-12 to 1e12, or 0.
int NaturalDecimals(double value);

/// The number that the text of `value` (in range as above) with its natural decimals reads back as.
double RoundToNaturalDecimals(double value);

}  // namespace kav
