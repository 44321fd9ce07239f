// Modal boxes and dialogs in tests: those that are expected are answered or used, any other fails
// the test and is closed.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kav::test {

struct SeenBox {
  std::u16string text;
  QMessageBox::Icon icon;
  std::u16string more;  ///< what stands below the text
};

class BoxWatch final : public QObject {
 public:
  static BoxWatch& Instance() {
    static BoxWatch watch;
    return watch;
  }

  /// The next to open is a box, answered by this button; left open for NoButton.
  void Expect(QMessageBox::StandardButton answer) { expected_.emplace_back(answer); }

  /// The next to open is a dialog, on which `use` is run; it must leave it closed.
  void ExpectDialog(std::function<void(QDialog&)> use) { expected_.emplace_back(std::move(use)); }

  /// The boxes that were answered since the last call; all that were expected must have come.
  std::vector<SeenBox> TakeSeen() {
    EXPECT_TRUE(expected_.empty()) << "a box or a dialog that was expected did not open";
    expected_.clear();
    return std::exchange(seen_, {});
  }

 private:
  BoxWatch() { qApp->installEventFilter(this); }

  using Use = std::function<void(QDialog&)>;

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || event->type() != QEvent::Show || event->spontaneous()) return false;
    auto* box = qobject_cast<QMessageBox*>(dialog);
    const bool isExpected =
        !expected_.empty() && (box == nullptr ? 1U : 0U) == expected_.front().index();
    if (!isExpected) {
      const QString text = box != nullptr ? box->text() : dialog->windowTitle();
      ADD_FAILURE() << "a modal box opened unasked: " << text.toStdString();
      QTimer::singleShot(0, dialog, &QDialog::reject);
      return false;
    }
    auto next = std::move(expected_.front());
    expected_.pop_front();
    if (box != nullptr) {
      Answer(*box, std::get<QMessageBox::StandardButton>(next));
    } else {
      Run(*dialog, std::get<Use>(std::move(next)));
    }
    return false;
  }

  void Answer(QMessageBox& box, QMessageBox::StandardButton answer) {
    seen_.push_back(
        {box.text().toStdU16String(), box.icon(), box.informativeText().toStdU16String()});
    auto* button = box.button(answer);
    if (button != nullptr) QTimer::singleShot(0, button, &QAbstractButton::click);
  }

  static void Run(QDialog& dialog, Use use) {
    QTimer::singleShot(0, &dialog, [&dialog, use = std::move(use)] {
      // A dialog counts as active while its opener is, before it has the keyboard itself.
      dialog.activateWindow();
      EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
      use(dialog);
      if (!dialog.isVisible()) return;
      ADD_FAILURE() << "a dialog was left open: " << dialog.windowTitle().toStdString();
      dialog.reject();
    });
  }

  std::deque<std::variant<QMessageBox::StandardButton, Use>> expected_;
  std::vector<SeenBox> seen_;
};

}  // namespace kav::test
