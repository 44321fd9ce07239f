// Text that is dragged over cells, from this program or another, and dropped on them.
#pragma once

#include <QPoint>
#include <QRect>
#include <functional>
#include <string>

class QAbstractScrollArea;

namespace kav {

/// What a widget of cells does with text that is dragged over it. Places are pixels of its
/// viewport.
struct TextDropHooks {
  /// What `text` would change if it were dropped at `place`; empty if it cannot be dropped there.
  std::function<QRect(QPoint place, const std::u16string& text)> landing;
  /// Called where `landing` is not empty, once the drag is over: questions and messages may follow.
  std::function<void(QPoint place, const std::u16string& text)> drop;
};

/// From here on `cells` takes text that is dropped on it, but no files. While it is dragged over
/// them, a frame shows where it would land; near an edge it scrolls them. What is dragged is copied
/// and stays where it comes from.
void TakeTextDrops(QAbstractScrollArea& cells, TextDropHooks hooks);

}  // namespace kav
