// Whether the widgets of a dialog have the room that they need.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <vector>

#include "screens/text_room.h"

namespace kav::test {

/// What can be seen within `whole` and has no layout of its own: fields, buttons, captions.
inline std::vector<QWidget*> VisibleParts(const QWidget& whole) {
  std::vector<QWidget*> parts;
  for (auto* widget : whole.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!widget->isVisible() || widget->isWindow()) continue;
    if (widget->layout() == nullptr || qobject_cast<QAbstractScrollArea*>(widget) != nullptr) {
      parts.push_back(widget);
      continue;
    }
    for (QWidget* part : VisibleParts(*widget)) parts.push_back(part);
  }
  return parts;
}

inline QString CaptionOf(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return combo->currentText();
  return {};
}

/// Every visible part lies within the dialog, and none over another.
inline void ExpectPartsApart(const QDialog& dialog) {
  const auto areaOf = [&](const QWidget& part) {
    return QRect(part.mapTo(&dialog, QPoint(0, 0)), part.size());
  };
  const auto parts = VisibleParts(dialog);
  EXPECT_GT(parts.size(), 2U);
  for (const QWidget* part : parts) {
    const std::string name = (part->accessibleName() + CaptionOf(*part)).toStdString();
    EXPECT_TRUE(dialog.rect().contains(areaOf(*part))) << name << " is not within the dialog";
    for (const QWidget* other : parts) {
      EXPECT_TRUE(part == other || !areaOf(*part).intersects(areaOf(*other)))
          << name << " overlaps " << CaptionOf(*other).toStdString();
    }
  }
}

/// And each has room for its text and all of its line.
inline void ExpectRoomForAll(const QDialog& dialog) {
  ExpectPartsApart(dialog);
  const TextRoom room(dialog);
  for (const QWidget* part : VisibleParts(dialog)) {
    const QString caption = CaptionOf(*part);
    const std::string name = (part->accessibleName() + caption).toStdString();
    const QFontMetrics text = part->fontMetrics();
    const QSize needed = text.size(0, caption).expandedTo({0, text.height()});
    EXPECT_GE(part->height(), needed.height()) << name << " is lower than its text";
    EXPECT_GE(part->width(), needed.width()) << name << " is cut";
  }
}

}  // namespace kav::test
