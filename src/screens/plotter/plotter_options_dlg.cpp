#include "screens/plotter/plotter_options_dlg.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>
#include <array>
#include <string_view>

#include "plotter/plotter_texts.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

QCheckBox* NewBox(std::u16string_view caption, bool isOn) {
  auto* box = new QCheckBox(ToQt(caption));
  box->setChecked(isOn);
  return box;
}

class CPlotterOptionsDlg final : public Dialog {
 public:
  CPlotterOptionsDlg(QWidget* parent, const PlotterOptions& options);

  /// What was chosen, once the dialog is accepted.
  const PlotterOptions& Accepted() const { return accepted_; }

 private:
  QLayout* NewFields();
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
      grid_(NewBox(kGridCaption, model_.Options().hasGrid)),
      line_(NewBox(kLineCaption, model_.Options().hasLines)),
      coordinates_(NewBox(kCoordinatesCaption, model_.Options().hasCoordinates)) {
  auto* all = new QVBoxLayout(this);
  all->addLayout(NewFields());
  for (QCheckBox* box : {grid_, line_, coordinates_}) all->addWidget(box);
  all->addStretch(1);
  all->addLayout(NewButtons());
}

QLayout* CPlotterOptionsDlg::NewFields() {
  auto* rows = new QFormLayout;
  for (const RangeField field : kRangeFields) {
    const QString caption = ToQt(CaptionOf(field));
    auto* edit = new QLineEdit(ToQt(model_.Fields()[IndexOf(field)]));
    edit->setAccessibleName(caption);
    rows->addRow(caption, edit);
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
