// A list of what the user stored under names of his own, which may be of any length.
#pragma once

#include <QListWidget>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kav {

class LabelList final : public QListWidget {
 public:
  /// A list called `name`.
  explicit LabelList(std::u16string_view name);

  std::optional<int> Selected() const;

  /// Makes the widget show `labels`, long ones cut, one of which is selected. Emits nothing.
  void Write(const std::vector<std::u16string>& labels, std::optional<int> selected);
};

}  // namespace kav
