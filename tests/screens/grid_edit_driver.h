// A grid whose texts are edited in place.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "screens/grid_driver.h"

namespace kav::test {

/// Twenty rows and three columns, with the focus on a cell with the text "old".
class GridEditTest : public GridScreen {
 protected:
  GridEditTest() {
    Build(20, 3);
    Put({2, 2}, u"old");
    grid_.setFocus();
    grid_.SetFocusCell({2, 2});
  }

  /// Opens the box over the focus cell with a new text in it.
  void Begin(const QString& text = "new") {
    Key(Qt::Key_F2);
    Type(text);
    ASSERT_EQ(BoxText(), text);
    log_.clear();
  }
  QString BoxText() { return grid_.IsEditing() && Box().isVisible() ? Box().text() : "(no box)"; }

  /// What is to happen while the hooks are told the next line.
  std::function<void()> meanwhile_;

 private:
  void Note(const std::string& line) override {
    GridScreen::Note(line);
    if (meanwhile_) std::exchange(meanwhile_, {})();
  }
};

}  // namespace kav::test
