// A list of things that the user named, with names of any length.
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

  /// Shows `labels` and selects one of them, or none; long ones are cut. Emits no signal.
  void Write(const std::vector<std::u16string>& labels, std::optional<int> selected);

  QSize minimumSizeHint() const override;

 private:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace kav
