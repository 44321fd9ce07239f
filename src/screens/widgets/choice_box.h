// A list that drops down.
#pragma once

#include <QComboBox>
#include <QFont>
#include <QStringList>
#include <optional>
#include <string_view>
#include <vector>

namespace kav {

/// A list as wide as its place. Its minimumSizeHint has room for the widest entry.
class ChoiceBox : public QComboBox {
 public:
  /// A list called `name`.
  explicit ChoiceBox(std::u16string_view name);

  /// Keeps room for these texts instead of the entries: for entries that change, or that may be too
  /// long for any place. Longer entries are cut visibly.
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
