// Modal boxes in tests: one that is expected is answered, any other fails the test and is closed.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <string>
#include <vector>

namespace kav::test {

struct SeenBox {
  std::u16string text;
  QMessageBox::Icon icon;
};

class BoxWatch final : public QObject {
 public:
  static BoxWatch& Instance() {
    static BoxWatch watch;
    return watch;
  }

  /// The next box that opens is expected, and answered by this button; left open for NoButton.
  void Expect(QMessageBox::StandardButton answer) { answers_.push_back(answer); }

  /// The boxes that were answered since the last call; all that were expected must have come.
  std::vector<SeenBox> TakeSeen() {
    EXPECT_TRUE(answers_.empty()) << "a box that was expected did not open";
    answers_.clear();
    return std::exchange(seen_, {});
  }

 private:
  BoxWatch() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || event->type() != QEvent::Show) return false;
    auto* box = qobject_cast<QMessageBox*>(dialog);
    if (box == nullptr || answers_.empty()) {
      const QString text = box != nullptr ? box->text() : dialog->windowTitle();
      ADD_FAILURE() << "a modal box opened unasked: " << text.toStdString();
      QTimer::singleShot(0, dialog, &QDialog::reject);
      return false;
    }
    seen_.push_back({box->text().toStdU16String(), box->icon()});
    auto* answer = box->button(answers_.front());
    if (answer != nullptr) QTimer::singleShot(0, answer, &QAbstractButton::click);
    answers_.pop_front();
    return false;
  }

  std::deque<QMessageBox::StandardButton> answers_;
  std::vector<SeenBox> seen_;
};

}  // namespace kav::test
