#include "screens/plotter/plotter_options_dlg.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <array>
#include <string_view>

#include "plotter/plotter_texts.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "screens/widgets/tool_tip.h"

namespace kav {
namespace {

QCheckBox* NewBox(std::u16string_view caption, std::u16string_view help, bool isOn) {
  auto* box = new QCheckBox(ToQt(caption));
  Explain(*box, help);
  box->setChecked(isOn);
  box->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
  return box;
}

class CPlotterOptionsDlg final : public Dialog {
 public:
  CPlotterOptionsDlg(QWidget* parent, const PlotterOptions& options);

  /// What was chosen, once the dialog is accepted.
  const PlotterOptions& Accepted() const { return accepted_; }

 private:
  QGridLayout* NewFields();
  QLayout* NewButtons();
  RangeTexts Typed() const;
  void OnAccept();

  PlotterOptionsModel model_;
  PlotterOptions accepted_;
  std::array<QLineEdit*, kRangeFields.size()> fields_{};
  QCheckBox* grid_;
  QCheckBox* line_;
  QCheckBox* coordinates_;
};

CPlotterOptionsDlg::CPlotterOptionsDlg(QWidget* parent, const PlotterOptions& options)
    : Dialog(parent, kPlotterOptionsTitle),
      model_(options),
      accepted_(options),
      grid_(NewBox(kGridCaption, kGridHelp, model_.Options().hasGrid)),
      line_(NewBox(kLineCaption, kLineHelp, model_.Options().hasLines)),
      coordinates_(NewBox(kCoordinatesCaption, kCoordinatesHelp, model_.Options().hasCoordinates)) {
  auto* all = new QVBoxLayout(this);
  // The rows share the height, so that no part of the dialog is empty.
  QGridLayout* rows = NewFields();
  for (QCheckBox* box : {grid_, line_, coordinates_})
    rows->addWidget(box, rows->rowCount(), 0, 1, 2);
  for (int row = 0; row < rows->rowCount(); ++row) rows->setRowStretch(row, 1);
  all->addLayout(rows, 1);
  all->addLayout(NewButtons());
}

QGridLayout* CPlotterOptionsDlg::NewFields() {
  auto* rows = new QGridLayout;
  for (const RangeField field : kRangeFields) {
    const QString caption = ToQt(CaptionOf(field));
    auto* edit = new QLineEdit(ToQt(model_.Fields()[IndexOf(field)]));
    edit->setAccessibleName(caption);
    OpenDoor(*edit, DoorKind::Number);
    auto* label = new QLabel(caption);
    label->setBuddy(edit);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    const int row = static_cast<int>(IndexOf(field));
    rows->addWidget(label, row, 0);
    rows->addWidget(edit, row, 1);
    fields_[IndexOf(field)] = edit;
  }
  return rows;
}

QLayout* CPlotterOptionsDlg::NewButtons() {
  auto* ok = new DialogButton(kOkCaption);
  auto* cancel = new DialogButton(kCancelCaption);
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &CPlotterOptionsDlg::OnAccept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  return buttons;
}

RangeTexts CPlotterOptionsDlg::Typed() const {
  RangeTexts texts;
  for (const RangeField field : kRangeFields) {
    texts[IndexOf(field)] = fields_[IndexOf(field)]->text().toStdU16String();
  }
  return texts;
}

void CPlotterOptionsDlg::OnAccept() {
  if (AsksFirst(*this, [this] { OnAccept(); })) return;
  auto options =
      model_.Accept(Typed(), {grid_->isChecked(), line_->isChecked(), coordinates_->isChecked()});
  if (options) {
    accepted_ = *options;
    return accept();
  }
  ShowStop(this, options.error().text);
  QLineEdit* field = fields_[IndexOf(options.error().focus)];
  field->setFocus();
  field->selectAll();
}

}  // namespace

std::optional<PlotterOptions> RunPlotterOptions(QWidget* parent, const PlotterOptions& options) {
  CPlotterOptionsDlg dlg(parent, options);
  if (!dlg.RunModal()) return std::nullopt;
  return dlg.Accepted();
}

}  // namespace kav
