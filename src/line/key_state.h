// The state of the keys under Shift and in a number base: what each shows, and whether it is
// visible and enabled.
#pragma once

#include <string_view>
#include <vector>

#include "engine/calc_modes.h"
#include "line/keypad.h"

namespace kav {

/// Whether the keys show their second functions. It stays until Shift is pressed again.
enum class ShiftState { Off = 0, On = 1 };

/// The face that `key` shows. Outside decimal a logic operator hides the second function.
const KeyFace& FaceShown(Key key, BaseMode base, ShiftState shift);

/// Every caption that a key may ever show.
std::vector<FaceText> CaptionsOf(const KeyPlace& place);

/// One of the two Shift keys is visible; in hexadecimal the digits A to F are, in place of six
/// functions.
bool IsKeyVisible(Key key, BaseMode base, ShiftState shift);

/// Whether `key` is visible and has a meaning in `base`. Outside decimal, Shift can be switched off
/// but not on.
bool IsKeyEnabled(Key key, BaseMode base, ShiftState shift);

}  // namespace kav
