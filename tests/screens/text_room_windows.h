// The windows in which the room of texts is measured, and the size of the texts in them.
#pragma once

#include <QSize>
#include <cstddef>
#include <cstdlib>
#include <span>

#include "display/text_scale.h"
#include "support/effort.h"

namespace kav::test {

/// The screens that there were and are, upright and on their side, and the smallest window.
constexpr QSize kWindows[] = {{180, 240},  {180, 280},   {240, 320},   {241, 333},   {320, 240},
                              {360, 560},  {480, 640},   {640, 480},   {600, 1024},  {800, 480},
                              {1280, 720}, {1080, 1440}, {1920, 1080}, {2160, 3840}, {3840, 2160}};

/// The windows of which people with larger texts have most.
constexpr QSize kWindowsOfLargeTexts[] = {{240, 320}, {360, 560},  {480, 640},
                                          {800, 480}, {1280, 720}, {1080, 1440}};

/// How large the user wants texts that a window cannot grow with, in percent.
inline int ScaleOfTexts() {
  const char* scale = std::getenv("KAV_TEST_TEXT_SCALE");
  return scale != nullptr ? std::atoi(scale) : kUsualTextScale;
}

inline double WantedShare() {
  return ScaleOfTexts() / 100.0;
}

inline bool AreTextsLarge() {
  return ScaleOfTexts() > kUsualTextScale;
}

/// Where the toolkit draws twice as large or a sanitizer watches it, the large windows take long
/// and tell nothing more.
inline std::span<const QSize> Windows() {
  if (AreTextsLarge()) return kWindowsOfLargeTexts;
  constexpr std::size_t kSmallOnes = 7;
  static_assert(kWindows[kSmallOnes - 1] == QSize(480, 640));
  const std::span<const QSize> all(kWindows);
  const bool isSlow = !IsFast() || std::getenv("KAV_TEST_DPI") != nullptr;
  return isSlow ? all.first(kSmallOnes) : all;
}

}  // namespace kav::test
