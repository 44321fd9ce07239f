#include "line/key_state.h"

#include "line/line_texts.h"
#include "line/screen_menus.h"

namespace kav {
namespace {

constexpr bool IsHexDigit(Key key) {
  return key >= Key::A && key <= Key::F;
}

/// The six functions that the digits A to F lie over.
constexpr bool IsUnderHexDigit(Key key) {
  switch (key) {
    case Key::Sin:
    case Key::Cos:
    case Key::Sinh:
    case Key::Cosh:
    case Key::Sqrt:
    case Key::Square:
      return true;
    default:
      return false;
  }
}

constexpr bool IsDecimalOnly(Key key) {
  switch (key) {
    case Key::Macro:
    case Key::Converter:
    case Key::Abs:
    case Key::Tan:
    case Key::Shift:
      return true;
    default:
      return IsUnderHexDigit(key);
  }
}

/// False only if `key` has a digit from 2 to 9 that `base` does not have.
constexpr bool IsDigitAllowed(Key key, BaseMode base) {
  switch (key) {
    case Key::Two:
    case Key::Three:
    case Key::Four:
    case Key::Five:
    case Key::Six:
    case Key::Seven:
      return base != BaseMode::Binary;
    case Key::Eight:
    case Key::Nine:
      return base != BaseMode::Binary && base != BaseMode::Octal;
    default:
      return true;
  }
}

}  // namespace

const KeyFace& FaceShown(Key key, BaseMode base, ShiftState shift) {
  if (base != BaseMode::Decimal) {
    if (const KeyFace* face = FindFace(key, Face::Base)) return *face;
  }
  return FaceOf(key, shift == ShiftState::On ? Face::Shifted : Face::Plain);
}

std::vector<FaceText> CaptionsOf(const KeyPlace& place) {
  const std::u16string_view plain = FaceOf(place.key, Face::Plain).description;
  if (place.key == Key::Deg) return {{kDegreesCaption, plain}, {kRadiansCaption, plain}};
  std::vector<FaceText> captions;
  if (place.key == Key::Dec) {
    for (const MenuItem& item : BuildBaseMenu(BaseMode::Decimal)) {
      captions.push_back({BaseCaption(*BaseOfItem(item.id)), plain});
    }
    return captions;
  }
  for (const Face face : {Face::Plain, Face::Shifted, Face::Base}) {
    const KeyFace* shown = FindFace(place.key, face);
    if (shown != nullptr) captions.push_back({shown->caption, shown->description});
  }
  return captions;
}

bool IsKeyVisible(Key key, BaseMode base, ShiftState shift) {
  if (key == Key::Shift) return shift == ShiftState::Off;
  if (key == Key::ShiftActive) return shift == ShiftState::On;
  if (IsHexDigit(key)) return base == BaseMode::Hexadecimal;
  return base != BaseMode::Hexadecimal || !IsUnderHexDigit(key);
}

bool IsKeyEnabled(Key key, BaseMode base, ShiftState shift) {
  if (!IsKeyVisible(key, base, shift)) return false;
  if (base != BaseMode::Decimal && IsDecimalOnly(key)) return false;
  return IsDigitAllowed(key, base);
}

}  // namespace kav
