// What Shift and the number base make of the keys: the face each shows, and whether it can be seen
// and pressed.
#pragma once

#include <string_view>
#include <vector>

#include "engine/calc_modes.h"
#include "line/keypad.h"

namespace kav {

/// Whether the keys show their second functions. Latched: only Shift itself changes it.
enum class ShiftState { Off = 0, On = 1 };

/// The face that `key` shows. The base goes before Shift: a logic operator hides the second
/// function.
const KeyFace& FaceShown(Key key, BaseMode base, ShiftState shift);

/// Every caption that a key may ever show.
std::vector<std::u16string_view> CaptionsOf(const KeyPlace& place);

/// Each place shows one key: one of the two Shift keys, and in hexadecimal the digits A to F
/// instead of six functions.
bool IsKeyVisible(Key key, BaseMode base, ShiftState shift);

/// Whether `key` is visible and has a meaning in `base`. Shift cannot be switched on outside
/// decimal, but one that is on can be switched off.
bool IsKeyEnabled(Key key, BaseMode base, ShiftState shift);

}  // namespace kav
