// A list that drops down.
#pragma once

#include <QComboBox>
#include <QFont>
#include <QStringList>
#include <optional>
#include <string_view>
#include <vector>

namespace kav {

/// As wide as its place. What the widest of its entries needs is its minimumSizeHint, so that a
/// dialog keeps room for it.
class ChoiceBox : public QComboBox {
 public:
  /// A list called `name`.
  explicit ChoiceBox(std::u16string_view name);

  /// From now on the room is kept for these texts, whatever the entries are: for entries that come
  /// and go, or that may be longer than any place. Longer ones are cut visibly.
  void KeepRoomFor(const std::vector<std::u16string_view>& texts);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  int WidestText() const;

  QStringList roomFor_;
  mutable std::optional<QFont> measuredIn_;  ///< the font in which they take kept_ pixels
  mutable int kept_ = 0;
};

}  // namespace kav
