// How many decimals a number is worth: all that were meant, and none that binary arithmetic left.
#pragma once

namespace kav {

/// How many decimals (0 to 13) show `value` without representation noise. `value` is finite and of
/// a magnitude from 1e-12 to 1e12, or 0.
int NaturalDecimals(double value);

/// The number that `value`, as above, reads back as when it is printed with its natural decimals.
double RoundToNaturalDecimals(double value);

}  // namespace kav
