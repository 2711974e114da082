#include "desktop/qt_file_dialog.h"

#include <QDir>
#include <QFileDialog>

#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

using platform::Failure;

QStringList nameFilters(const std::string& filter) {
  QStringList filters;
  const QStringList parts = toQt(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // Here a file need not have a point in its name.
    const QString pattern =
        parts[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : parts[i + 1];
    filters << QStringLiteral("%1 (%2)").arg(parts[i], pattern);
  }
  return filters;
}

QtFileDialog::QtFileDialog() : folder_(QDir::currentPath()) {
  if (folder_ == QDir::rootPath()) folder_ = QDir::homePath();
}

Failure QtFileDialog::askOpen() {
  QFileDialog dialog(parent_);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  return show(dialog);
}

Failure QtFileDialog::askSave() {
  QFileDialog dialog(parent_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // A name without extension gets that of the filter, and none under the filter for all files.
  const QString extension = toQt(FileName).section(QLatin1Char('.'), -1);
  const auto completeBy = [&dialog, extension](const QString& filter) {
    const bool allFiles = filter.endsWith(QLatin1String("(*)"));
    dialog.setDefaultSuffix(allFiles ? QString() : extension);
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, completeBy);
  completeBy({});
  return show(dialog);
}

Failure QtFileDialog::show(QFileDialog& dialog) {
  dialog.setFileMode(QFileDialog::AnyFile);
  // The filters carry their pattern twice: in the words that are given, and for the toolkit.
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(nameFilters(Filter));
  dialog.setDirectory(folder_);
  dialog.selectFile(toQt(FileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
    return Failure::Cancel;
  }
  folder_ = dialog.directory().absolutePath();
  choose(dialog.selectedFiles().constFirst().toStdString());
  return Failure::None;
}

}  // namespace monitra::desktop
