#include "screens/display/look_view.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "display/display_settings_texts.h"
#include "screens/widgets/choice_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {

LookView::LookView(DisplaySettingsModel& model)
    : model_(model),
      colours_(new ChoiceBox(kColoursCaption)),
      liveResult_(new QCheckBox(ToQt(kLiveResultCaption))) {
  for (const std::u16string_view choice : kColourChoiceNames) colours_->addItem(ToQt(choice));
  colours_->view();  // is made now, and so gets the look of the dialog
  Explain(*liveResult_, kLiveResultMeaning);
  auto* parts = new QGridLayout(this);
  parts->setContentsMargins(0, 0, 0, 0);
  parts->addWidget(new QLabel(ToQt(kColoursCaption)), 0, 0);
  parts->addWidget(colours_, 0, 1);
  parts->addWidget(liveResult_, 1, 0, 1, 2);
  parts->setColumnStretch(1, 1);
  parts->setRowStretch(2, 1);
  connect(colours_, &QComboBox::currentIndexChanged, this, &LookView::TakeChoice);
  connect(liveResult_, &QCheckBox::toggled, this, &LookView::TakeChoice);
}

void LookView::TakeChoice() {
  model_.ChooseLook(
      {static_cast<ColourChoice>(colours_->currentIndex()), liveResult_->isChecked()});
}

void LookView::Refresh() {
  const LookSettings look = model_.Look();
  // Each of the two changes by itself.
  const QSignalBlocker noChoice(colours_);
  const QSignalBlocker noSwitch(liveResult_);
  colours_->setCurrentIndex(static_cast<int>(look.colours));
  liveResult_->setChecked(look.hasLiveResult);
}

}  // namespace kav
