// The list of macros as a widget, the same in the editor and in the list to choose from.
#pragma once

#include <QListWidget>
#include <optional>
#include <string>
#include <vector>

namespace kav {

class MacroListView final : public QListWidget {
 public:
  MacroListView();

  std::optional<int> Selected() const;

  /// Makes the widget show `labels`, long ones cut, one of which is selected. Emits nothing.
  void Write(const std::vector<std::u16string>& labels, std::optional<int> selected);
};

}  // namespace kav
