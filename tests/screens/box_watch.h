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

  /// The next to open is a box, answered by its button of this caption.
  void ExpectAnswer(const QString& caption) { expected_.emplace_back(caption); }

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
        !expected_.empty() && (box == nullptr) == std::holds_alternative<Use>(expected_.front());
    if (!isExpected) {
      const QString text = box != nullptr ? box->text() : dialog->windowTitle();
      ADD_FAILURE() << "a modal box opened unasked: " << text.toStdString();
      QTimer::singleShot(0, dialog, &QDialog::reject);
      return false;
    }
    auto next = std::move(expected_.front());
    expected_.pop_front();
    if (box != nullptr) {
      Answer(*box, ButtonOf(*box, next));
    } else {
      Run(*dialog, std::get<Use>(std::move(next)));
    }
    return false;
  }

  using Expected = std::variant<QMessageBox::StandardButton, QString, Use>;

  static QAbstractButton* ButtonOf(const QMessageBox& box, const Expected& answer) {
    const auto* caption = std::get_if<QString>(&answer);
    if (caption == nullptr) return box.button(std::get<QMessageBox::StandardButton>(answer));
    for (QAbstractButton* button : box.buttons()) {
      if (button->text() == *caption) return button;
    }
    ADD_FAILURE() << "no such answer: " << caption->toStdString();
    return box.button(QMessageBox::Cancel);
  }

  void Answer(QMessageBox& box, QAbstractButton* button) {
    seen_.push_back(
        {box.text().toStdU16String(), box.icon(), box.informativeText().toStdU16String()});
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

  std::deque<Expected> expected_;
  std::vector<SeenBox> seen_;
};

}  // namespace kav::test
