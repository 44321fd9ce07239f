// Reads and answers what is asked beside a field.
#pragma once

#include <gtest/gtest.h>

#include <QPushButton>
#include <QtTest/QTest>
#include <string>

#include "screens/widgets/offer_strip.h"

namespace kav::test {

/// The strip that is shown; null if none is.
inline OfferStrip* ShownStrip(const QWidget& screen) {
  for (auto* part : screen.findChildren<QWidget*>()) {
    auto* strip = dynamic_cast<OfferStrip*>(part);
    if (strip != nullptr && strip->isVisible()) return strip;
  }
  return nullptr;
}

/// The question that is asked; empty if none is.
inline std::string Asked(const QWidget& screen) {
  const OfferStrip* strip = ShownStrip(screen);
  return strip != nullptr ? strip->Question().toStdString() : std::string();
}

/// Taps the answer that is called so.
inline void TapOffer(const QWidget& screen, const QString& name) {
  const OfferStrip* strip = ShownStrip(screen);
  ASSERT_NE(strip, nullptr) << "nothing is asked";
  for (auto* button : strip->findChildren<QPushButton*>()) {
    if (button->isHidden() || button->accessibleName() != name) continue;
    return QTest::mouseClick(button, Qt::LeftButton);
  }
  FAIL() << "no such answer: " << name.toStdString();
}

}  // namespace kav::test
