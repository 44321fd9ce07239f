#include "screens/widgets/file_choice.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "screens/widgets/qt_text.h"

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

std::optional<std::size_t> KindOf(const std::string& path, std::span<const FileKind> kinds) {
  const QString suffix = QFileInfo(QFile::decodeName(path.c_str())).suffix();
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (suffix.compare(ToQt(kinds[i].suffix), Qt::CaseInsensitive) == 0) return i;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> AskFileToOpen(QWidget* parent, const FileKind& kind) {
  QFileDialog dialog(parent, QString(), Folder(), ToQt(kind.filter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Chosen(dialog);
}

std::optional<std::string> AskFileToSave(QWidget* parent, const FileKind& kind) {
  const auto chosen = AskFileToSave(parent, std::span(&kind, 1));
  return chosen ? std::optional(chosen->path) : std::nullopt;
}

std::optional<FileToSave> AskFileToSave(QWidget* parent, std::span<const FileKind> kinds) {
  QStringList filters;
  for (const FileKind& kind : kinds) filters.append(ToQt(kind.filter));
  QFileDialog dialog(parent, QString(), Folder());
  dialog.setNameFilters(filters);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  const auto filter = [&] {
    return static_cast<std::size_t>(
        std::max<qsizetype>(filters.indexOf(dialog.selectedNameFilter()), 0));
  };
  const auto takeSuffix = [&] { dialog.setDefaultSuffix(ToQt(kinds[filter()].suffix)); };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
  takeSuffix();
  auto path = Chosen(dialog);
  if (!path) return std::nullopt;
  const std::size_t kind = KindOf(*path, kinds).value_or(filter());
  return FileToSave{std::move(*path), kind};
}

}  // namespace kav
