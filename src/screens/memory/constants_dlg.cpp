#include "screens/memory/constants_dlg.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "memory/constants_model.h"
#include "memory/constants_table.h"
#include "memory/memory_texts.h"
#include "screens/memory/constants_view.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kLongestFilter = 100;

/// The name of the selected constant. There is room for the longest name of all, so that nothing
/// moves when another row is selected.
class NameLabel final : public QLabel {
 public:
  explicit NameLabel(const ConstantsModel& model) {
    QStringList names;
    for (std::size_t row = 0; row < model.ShownCount(); ++row) {
      names.append(OneLine(model.Shown(row).name));
    }
    names_ = LongOnes(names);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Without a text, a label would not ask for its height by its width.
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
  }

  QSize sizeHint() const override { return {0, HeightOf(kFewestLines)}; }
  QSize minimumSizeHint() const override { return sizeHint(); }
  int heightForWidth(int width) const override {
    // A layout asks many times.
    if (measured_ != std::pair(width, font().pixelSize())) {
      lines_ = LinesIn(width);
      measured_ = {width, font().pixelSize()};
    }
    return HeightOf(lines_);
  }

 private:
  static constexpr int kFewestLines = 2;

  /// The user's own table may have names of any length. Larger letters take more lines.
  static int MostLines() {
    constexpr int kUsual = 4;
    return qRound(kUsual * std::max(TextShare(), 1.0));
  }
  int LinesIn(int width) const {
    int lines = kFewestLines;
    for (const QString& name : names_) {
      // Wrapped, two adjacent lines hold more than the width of one: this name fits.
      if (fontMetrics().horizontalAdvance(name) <= (lines - 1) * width) continue;
      while (lines < MostLines() && HeightIn(width, name) > HeightOf(lines)) ++lines;
    }
    return lines;
  }
  int HeightOf(int lines) const {
    return fontMetrics().size(0, QStringList(lines, "X").join(u'\n')).height();
  }
  int HeightIn(int width, const QString& name) const {
    constexpr int kAnyHeight = 1 << 20;
    return fontMetrics()
        .boundingRect(QRect(0, 0, width, kAnyHeight), Qt::TextWordWrap, name)
        .height();
  }

  QStringList names_;                           // those that may need most lines
  mutable std::pair<int, int> measured_{0, 0};  // the width and letter size that lines_ is for
  mutable int lines_ = kFewestLines;
};

class CConstantsDlg final : public Dialog {
 public:
  CConstantsDlg(QWidget* parent, ConstantsModel& model);

  /// The value that was chosen; nullopt if none was.
  std::optional<std::u16string> Chosen() && { return std::move(chosen_); }

 private:
  void LayOut();
  void Connect();
  void Refresh();
  void OnFilter(const QString& filter);
  void OnOk();
  bool eventFilter(QObject* watched, QEvent* event) override;

  ConstantsModel& model_;
  std::optional<std::u16string> chosen_;
  QLineEdit* filter_ = new QLineEdit;
  QLabel* count_ = new QLabel;
  ConstantsView* list_;
  QLabel* name_;
  QLineEdit* value_ = new QLineEdit;
  DialogButton* ok_ = new DialogButton(kOkCaption);
  DialogButton* cancel_ = new DialogButton(kCancelCaption);
};

CConstantsDlg::CConstantsDlg(QWidget* parent, ConstantsModel& model)
    : Dialog(parent, kConstantsTitle),
      model_(model),
      list_(new ConstantsView(model, [this] { Refresh(); })),
      name_(new NameLabel(model)) {
  SetPage(GuidePage::Constants);
  filter_->setPlaceholderText(ToQt(kFilterCaption));
  filter_->setAccessibleName(ToQt(kFilterCaption));
  filter_->setMaxLength(kLongestFilter);
  filter_->installEventFilter(this);
  name_->setAccessibleName(ToQt(kConstantName));
  value_->setAccessibleName(ToQt(kConstantValue));
  value_->setReadOnly(true);
  Wear(*value_, Attire::Result);
  LayOut();
  Connect();
  Refresh();
}

void CConstantsDlg::LayOut() {
  auto* top = new QHBoxLayout;
  top->addWidget(filter_, 1);
  top->addWidget(count_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top);
  all->addWidget(list_, 1);
  all->addWidget(new QLabel(ToQt(kConstantName)));
  all->addWidget(name_);
  all->addWidget(new QLabel(ToQt(kConstantValue)));
  all->addWidget(value_);
  all->addLayout(buttons);
  ok_->setDefault(true);
  filter_->setFocus();
}

void CConstantsDlg::Connect() {
  connect(filter_, &QLineEdit::textChanged, this, &CConstantsDlg::OnFilter);
  connect(list_, &QTreeView::doubleClicked, this, &CConstantsDlg::OnOk);
  connect(ok_, &QPushButton::clicked, this, &CConstantsDlg::OnOk);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void CConstantsDlg::Refresh() {
  count_->setText(ToQt(model_.CountText()));
  name_->setText(OneLine(model_.SelectedName()));
  value_->setText(OneLine(model_.SelectedValue()));
  value_->setCursorPosition(0);
}

void CConstantsDlg::OnFilter(const QString& filter) {
  model_.SetFilter(filter.toStdU16String());
  list_->Reload();
  Refresh();
}

void CConstantsDlg::OnOk() {
  auto value = model_.Choose();
  if (!value) return ShowStop(this, value.error());
  chosen_ = *std::move(value);
  accept();
}

/// The keys that move between rows also work in the filter.
bool CConstantsDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched != filter_ || event->type() != QEvent::KeyPress) return false;
  return list_->TakeKey(static_cast<QKeyEvent*>(event)->key());
}

}  // namespace

std::optional<std::u16string> RunConstants(QWidget* parent) {
  return RunConstants(parent, ConstantsFolders());
}

std::optional<std::u16string> RunConstants(QWidget* parent,
                                           const std::vector<std::string>& folders) {
  ConstantsModel model(folders);
  if (model.LoadFailure()) ShowStop(parent, *model.LoadFailure());
  CConstantsDlg dlg(parent, model);
  dlg.RunModal();
  return std::move(dlg).Chosen();
}

}  // namespace kav
