// The engine's functions a second time, as the formulas say them: what tests hold the engine
// against.
#pragma once

#include <cstdint>
#include <string>

#include "engine/calc_modes.h"

namespace kav::test {

/// Whether sine or cosine of `x` is exactly 0, and whether its tangent has no value.
bool PlainSineZero(double x, AngleUnit unit);
bool PlainCosineZero(double x, AngleUnit unit);
bool PlainTangentPole(double x, AngleUnit unit);

/// n! from n downward; -1 if `n` is negative or not whole.
double PlainFactorial(double n);

/// Truncated toward zero and taken modulo 2^32 into the signed range; 0 if it is not finite.
std::int32_t PlainInt32(double x);

double PlainShiftLeft(double left, double right);
double PlainShiftRight(double left, double right);

/// Whether the function `name` has a value at `x`, which is finite.
bool PlainIsInDomain(const std::string& name, double x, AngleUnit unit);

/// The value of the function `name` at `x`, which is in its domain.
double PlainApply(const std::string& name, double x, AngleUnit unit);

}  // namespace kav::test
