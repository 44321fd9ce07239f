#include "app/message_box.h"

#include <QMessageBox>

#include "app/app_texts.h"

namespace kav {
namespace {

int Show(QWidget* parent, QMessageBox::Icon icon, std::u16string_view text,
         QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, QStringView(kApplicationName).toString(), QStringView(text).toString(),
                  buttons, parent);
  // What is said may hold a file name or a line of the user's, which is not to be read as markup.
  box.setTextFormat(Qt::PlainText);
  return box.exec();
}

}  // namespace

void ShowStop(QWidget* parent, std::u16string_view text) {
  Show(parent, QMessageBox::Critical, text, QMessageBox::Ok);
}

void ShowNotice(QWidget* parent, std::u16string_view text) {
  Show(parent, QMessageBox::Warning, text, QMessageBox::Ok);
}

bool AskYesNo(QWidget* parent, std::u16string_view question) {
  return Show(parent, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

void ShowAbout(QWidget* parent) {
  Show(parent, QMessageBox::Information, kAbout, QMessageBox::Ok);
}

}  // namespace kav
