#include "app/file_choice.h"

#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

#include "app/qt_text.h"

namespace kav {
namespace {

/// Where the next choice begins: the folder of the last one, for as long as the program runs.
QString& Folder() {
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return folder;
}

std::optional<std::string> Chosen(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  Folder() = dialog.directory().absolutePath();
  return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace

std::optional<std::string> AskFileToOpen(QWidget* parent, const FileKind& kind) {
  QFileDialog dialog(parent, QString(), Folder(), ToQt(kind.filter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Chosen(dialog);
}

std::optional<std::string> AskFileToSave(QWidget* parent, const FileKind& kind) {
  QFileDialog dialog(parent, QString(), Folder(), ToQt(kind.filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(ToQt(kind.suffix));
  return Chosen(dialog);
}

}  // namespace kav
