// The parts of dialogs whose outlines the desktop's style draws darker than what is around them,
// which is not seen where that is dark itself, and too weak for high contrast.
#pragma once

#include <QStyle>

class QPainter;
class QStyleOption;

namespace kav {

/// Draws such a part with an outline that is seen. False if it is to be drawn as usual: in light
/// colours all are.
bool DrawOutlined(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter);
bool DrawOutlined(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter);

}  // namespace kav
