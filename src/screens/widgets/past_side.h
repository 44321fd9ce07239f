// Where a screen with a line has the history of all sessions.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <functional>

#include "line/past_lines_model.h"
#include "screens/widgets/frame.h"
#include "screens/widgets/past_panel.h"
#include "screens/widgets/side_places.h"

namespace kav {

/// What is asked of the screen. What a panel lies over is hidden, so that no key leads there.
struct PastSideHooks {
  std::function<void(const PastLine& past, PastPart part)> take;
  std::function<void()> layOut;  ///< everything, because the history came or went
  std::function<void()> uncover;
  std::function<void()> cover;
  std::function<void()> leave;  ///< gives the keyboard to the line
};

/// The history beside the screen in a wide window, else over its keys. The panel is made when it is
/// first shown, and what it shows is read then. It stands beside a column unless the user hid it,
/// which is remembered, and beside a sheet only if the user asks for it.
class PastSide final : public QObject {
 public:
  /// `screen` and `frame` must outlive it.
  PastSide(QWidget& screen, Frame& frame, PastRoom room, SideNeighbour neighbour,
           PastSideHooks hooks);

  /// The part of the window that is the screen's.
  QRect ScreenPart() const;
  /// The part that is painted as one with the panel, which may come a moment later; empty if it
  /// does not stand beside the screen.
  QRect PanelPart() const;
  /// To be called whenever the screen is laid out. `keys` is what the panel may lie over, `pixels`
  /// the height of its letters.
  void LayOut(const QRect& keys, int pixels);
  /// To be called when the window was painted.
  void Painted();

  /// Shows the panel and gives it the keyboard, or hides it.
  void Toggle();
  /// Shows what was added, if the panel is shown.
  void Load();

 private:
  bool IsBeside() const { return !PanelPart().isEmpty(); }
  bool IsShown() const { return panel_ != nullptr && panel_->isVisibleTo(&screen_); }
  void Show();
  void Close();
  void MakePanel();
  void Place();
  void Hide();
  void Take(const PastLine& past, PastPart part);
  void RememberWanted();

  QWidget& screen_;
  Frame& frame_;
  PastRoom room_;
  SideNeighbour neighbour_;
  PastSideHooks hooks_;
  QPointer<PastPanel> panel_;
  QRect keys_;
  int pixels_ = 1;
  bool isWanted_;        ///< beside the screen
  bool isOver_ = false;  ///< the keys
};

}  // namespace kav
