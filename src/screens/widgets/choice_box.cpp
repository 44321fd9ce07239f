#include "screens/widgets/choice_box.h"

#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {

ChoiceBox::ChoiceBox(std::u16string_view name) {
  // Before the list is made, which is the style's to shape.
  setStyle(ScreenStyle());
  setAccessibleName(ToQt(name));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ChoiceBox::KeepRoomFor(const std::vector<std::u16string_view>& texts) {
  QStringList all;
  for (const std::u16string_view text : texts) all.append(ToQt(text));
  roomFor_ = LongOnes(all);
  measuredIn_.reset();
  // Nor do the entries count for anything else: there may be many.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(1);
}

QSize ChoiceBox::sizeHint() const {
  return {minimumSizeHint().width(), QComboBox::sizeHint().height()};
}

int ChoiceBox::WidestText() const {
  int widest = 0;
  const auto measure = [&](const QString& text) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(text));
  };
  if (roomFor_.isEmpty()) {
    for (int i = 0; i < count(); ++i) measure(itemText(i));
    return widest;
  }
  // A layout asks many times before it is done.
  if (measuredIn_ == font()) return kept_;
  for (const QString& text : roomFor_) measure(text);
  measuredIn_ = font();
  return kept_ = widest;
}

QSize ChoiceBox::minimumSizeHint() const {
  // What the style takes of any width for itself.
  QStyleOptionComboBox option;
  initStyleOption(&option);
  constexpr int kAnyWidth = 1000;
  option.rect.setWidth(kAnyWidth);
  const int field =
      style()
          ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
          .width();
  return {WidestText() + kChoiceMargin + kAnyWidth - field, QComboBox::sizeHint().height()};
}

}  // namespace kav
