#include "screens/widgets/file_choice.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <utility>

#include "screens/widgets/file_dialog.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// The folder of the last choice, for as long as the program runs.
QString& Folder() {
  static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return folder;
}

/// Where the next choice begins. A folder that is not there would become the name of the file.
QString FirstFolder() {
  for (const QString& folder : {Folder(), QDir::homePath()}) {
    if (QDir(folder).exists()) return folder;
  }
  return QDir::rootPath();
}

/// `kind` and all others by which data are found.
std::array<FileKind, 3> WithDataKinds(const FileKind& kind) {
  return {kind, FileKind{u"Data files (*.txt *.csv *.tsv *.dat)", kind.suffix},
          FileKind{u"All files (*)", u""}};
}

QStringList FiltersOf(std::span<const FileKind> kinds) {
  QStringList filters;
  for (const FileKind& kind : kinds) filters.append(ToQt(kind.filter));
  return filters;
}

/// The lists of the toolkit's own dialog are named by labels that only stand beside them.
void NameLists(const QFileDialog& dialog) {
  for (const auto& [name, label] : {std::pair("lookInCombo", QFileDialog::LookIn),
                                    std::pair("fileTypeCombo", QFileDialog::FileType)}) {
    auto* list = dialog.findChild<QWidget*>(QLatin1String(name));
    if (list != nullptr) list->setAccessibleName(dialog.labelText(label).remove(u':'));
  }
}

std::optional<std::string> Chosen(QFileDialog& dialog) {
  FitOverScreen(dialog, *dialog.parentWidget());
  NameLists(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  Folder() = dialog.directory().absolutePath();
  return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

std::optional<std::size_t> KindOf(const std::string& path, std::span<const FileKind> kinds) {
  const QString suffix = QFileInfo(QFile::decodeName(path.c_str())).suffix();
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (!suffix.isEmpty() && suffix.compare(ToQt(kinds[i].suffix), Qt::CaseInsensitive) == 0) {
      return i;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> AskFileToOpen(QWidget* parent, const FileKind& kind) {
  QFileDialog dialog(parent, QString(), FirstFolder());
  dialog.setNameFilters(FiltersOf(WithDataKinds(kind)));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Chosen(dialog);
}

std::optional<std::string> AskFileToSave(QWidget* parent, const FileKind& kind) {
  const auto chosen = AskFileToSave(parent, WithDataKinds(kind));
  return chosen ? std::optional(chosen->path) : std::nullopt;
}

std::optional<FileToSave> AskFileToSave(QWidget* parent, std::span<const FileKind> kinds) {
  const QStringList filters = FiltersOf(kinds);
  QFileDialog dialog(parent, QString(), FirstFolder());
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
