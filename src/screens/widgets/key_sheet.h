// The keys of a screen as widgets.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string_view>
#include <vector>

#include "line/key_help.h"
#include "screens/widgets/key_view.h"
#include "screens/widgets/look.h"

namespace kav {

/// How a key is at the moment.
struct KeyState {
  std::u16string_view caption;
  bool isEnabled = true;
  bool isVisible = true;
};

/// Keys, each at its spot: a sheet that lies over the whole body of a screen, under what else
/// stands there. The arrows move the focus from key to key.
class KeySheet final : public QWidget {
 public:
  /// `onKey` is called with a key's id when it is tapped, or pressed by the Space key or its
  /// shortcut.
  KeySheet(QWidget* parent, std::vector<KeySpot> spots, const std::function<void(int)>& onKey);

  /// Shows the keys as `stateOf` says of each id.
  void Refresh(const std::function<KeyState(int)>& stateOf);

  void Show(KeyLettering lettering);

  /// All keys, for the list of them.
  std::vector<ListedKey> Listed() const;

  void LayOut(const DialogUnits& units);
  /// The same with the pixels of each spot as `pixelsOf` has them.
  void LayOut(const std::function<QRect(const QRect& spot)>& pixelsOf);

  /// Gives the focus to the first key.
  void Enter();

  /// Where a key is, in the coordinates of this widget.
  QRect KeyArea(int id) const;

  /// What a key shows at the moment.
  QString KeyCaption(int id) const;

  /// The text height that all keys share, in pixels.
  int TextHeight() const { return textHeight_; }

 private:
  void keyPressEvent(QKeyEvent* event) override;
  void OrderTabs();
  const KeyView& KeyOf(int id) const;
  KeyView* Neighbour(const KeyView& from, QPoint direction) const;

  std::vector<KeyView*> keys_;
  int textHeight_ = 1;
};

}  // namespace kav
