#include "screens/statistics/work_progress_view.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kPercent = 100;

/// The width of the box, as a part of the width of the screen below it.
constexpr double kBoxWidth = 0.8;

}  // namespace

class WorkProgressView::Box final : public QDialog {
 public:
  Box(QWidget* parent, std::u16string_view title) : QDialog(parent) {
    const QRect area = AreaOver(*parent);
    const int width = qRound(area.width() * kBoxWidth);
    // Its title and the room on either side of it, that of a letter each.
    const int most = TextPixels(area.height());
    const int text = FittingPixels({{ToQt(title), width - 2 * most}}, most, 1);
    setWindowTitle(ToQt(title));
    Wear(*this, Attire::Window);
    setFont(ScreenFont(text));
    setModal(true);
    auto* cancel = new DialogButton(kCancelCaption);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { isCancelled_ = true; });
    bar_->setRange(0, kPercent);
    bar_->setAccessibleName(ToQt(title));
    auto* all = new QVBoxLayout(this);
    all->addWidget(new QLabel(ToQt(title)));
    all->addWidget(bar_);
    all->addWidget(cancel);
    all->setSpacing(text / 2);
    all->setContentsMargins(text, text, text, text);
    for (QWidget* widget : findChildren<QWidget*>()) widget->setStyle(ScreenStyle());
    setFixedSize(width, all->sizeHint().height());
    move(area.center() - rect().center());
  }

  bool IsCancelled() const { return isCancelled_; }

  void ShowDone(double done) {
    bar_->setValue(static_cast<int>(std::lround(std::clamp(done, 0.0, 1.0) * kPercent)));
  }

 private:
  QProgressBar* bar_ = new QProgressBar;
  bool isCancelled_ = false;
};

WorkProgressView::WorkProgressView(QWidget* parent, std::u16string_view title,
                                   std::chrono::milliseconds patience)
    : parent_(parent), title_(title), patience_(patience) {
  elapsed_.start();
}

WorkProgressView::~WorkProgressView() = default;

bool WorkProgressView::Update(double done) {
  if (!box_) {
    if (elapsed_.elapsed() < patience_.count()) return true;
    box_ = std::make_unique<Box>(parent_, title_);
    box_->show();
  }
  if (box_->IsCancelled()) return false;
  box_->ShowDone(done);
  // The box is modal, so that events of the user reach no other window.
  QCoreApplication::processEvents();
  return !box_->IsCancelled();
}

}  // namespace kav
