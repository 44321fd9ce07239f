#include "display/text_scale.h"

#include <algorithm>

namespace kav {
namespace {

constexpr int kStep = 10;

}  // namespace

int TextScaleFromSetting(std::int32_t stored) {
  const int within = std::clamp<int>(stored, kLeastTextScale, kMostTextScale);
  return (within + kStep / 2) / kStep * kStep;
}

int NextTextScale(int percent, TextStep step) {
  switch (step) {
    case TextStep::Larger:
      return std::min(percent + kStep, kMostTextScale);
    case TextStep::Smaller:
      return std::max(percent - kStep, kLeastTextScale);
    case TextStep::Usual:
      break;
  }
  return kUsualTextScale;
}

double DesktopTextShare(double points) {
  constexpr double kUsual = 10;
  constexpr double kLeastUsual = 9;
  constexpr double kMostUsual = 11;
  constexpr double kLeast = 0.5;
  constexpr double kMost = 2;
  if (!(points > 0) || (points >= kLeastUsual && points <= kMostUsual)) return 1;
  return std::clamp(points / kUsual, kLeast, kMost);
}

}  // namespace kav
