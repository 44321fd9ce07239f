// The list of keys on the screen.
#pragma once

#include <vector>

#include "line/key_help.h"

class QWidget;

namespace kav {

/// Lists `keys` and the shortcuts of every screen, in a dialog over `parent`, until it is closed.
void RunKeys(QWidget* parent, const std::vector<ListedKey>& keys);

}  // namespace kav
