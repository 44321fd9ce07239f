// The arithmetic of single operations on doubles, with the engine's own rules about exactness.
#pragma once

#include "engine/calc_modes.h"

namespace kav {

/// x^y, bit for bit that of the C library's pow; computed by cheaper means if they provably agree.
double Power(double x, double y);

/// Whether sin of `angle` is exactly 0: a whole multiple of 180 degrees.
bool IsSineZero(double angle, AngleUnit unit);

/// Whether cos of `angle` is exactly 0. Only positive angles are recognised: cos(-90) stays the
/// tiny value that computing it gives.
bool IsCosineZero(double angle, AngleUnit unit);

/// Whether tan of `angle` has no value: an odd multiple of 90 degrees, of either sign.
bool IsTangentPole(double angle, AngleUnit unit);

double Sine(double angle, AngleUnit unit);
double Cosine(double angle, AngleUnit unit);
/// `angle` is no pole.
double Tangent(double angle, AngleUnit unit);

/// `radians` in `unit`: what asin, acos and atan answer.
double InAngleUnit(double radians, AngleUnit unit);

/// n! as a product from n downward; -1 if `n` is negative or not whole; infinity from 171 on.
double Factorial(double n);

/// `left` shifted by `count` bits as 32-bit integers; a count outside 0..31 shifts everything out,
/// the right shift keeping the sign.
double ShiftLeft(double left, double count);
double ShiftRight(double left, double count);

}  // namespace kav
