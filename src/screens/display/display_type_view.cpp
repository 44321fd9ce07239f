#include "screens/display/display_type_view.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <cstddef>

#include "display/display_settings_texts.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

/// Takes taps all over its row, not only on its text.
class RowButton final : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 private:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
};

}  // namespace

DisplayTypeView::DisplayTypeView()
    : buttons_(new QButtonGroup(this)), mark_(new QLabel(ToQt(kRecommendedMark))) {
  Wear(*this, Attire::Choices);
  setAutoFillBackground(true);
  auto* rows = new QGridLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setColumnStretch(1, 1);
  for (const std::u16string_view caption : kDisplayTypeCaptions) {
    const int type = static_cast<int>(buttons_->buttons().size());
    auto* button = new RowButton(ToQt(caption));
    Explain(*button, kDisplayTypeHelp[static_cast<std::size_t>(type)]);
    buttons_->addButton(button, type);
    // The mark stands right behind its button; other buttons may take the whole width.
    const bool isMarked = type == static_cast<int>(DisplayType::FloatingPoint);
    rows->addWidget(button, type, 0, 1, isMarked ? 1 : 2);
    if (isMarked) rows->addWidget(mark_, type, 1);
  }
}

void DisplayTypeView::Show(DisplayType chosen) {
  buttons_->button(static_cast<int>(chosen))->setChecked(true);
}

}  // namespace kav
