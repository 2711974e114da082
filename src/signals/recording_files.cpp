#include "signals/recording_files.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QMessageBox>
#include <QSaveFile>
#include <optional>

#include "widgets/text.h"
#include "wire/vcd_reader.h"
#include "wire/vcd_writer.h"

namespace monitra::signals {

using widgets::toQt;

namespace {

const QString& filter() {
  static const QString text = QStringLiteral("VCD-felvétel (*.vcd);;Minden fájl (*)");
  return text;
}

void tell(QWidget* parent, const QString& text) {
  QMessageBox::warning(parent, QStringLiteral("Jelek"), text);
}

/// The user's choice of the two wires; none if there isn't one.
std::optional<wire::WireNames> askForWires(QWidget* parent, const std::vector<std::string>& names) {
  QDialog dialog(parent);
  dialog.setWindowTitle(QStringLiteral("Melyik két vezeték a soros vonal?"));
  auto* const form = new QFormLayout(&dialog);
  QComboBox* boxes[2];
  const char* const labels[] = {"&Adat:", "Ó&rajel:"};
  for (int n = 0; n < 2; ++n) {
    boxes[n] = new QComboBox;
    for (const std::string& name : names) boxes[n]->addItem(toQt(name));
    boxes[n]->setCurrentIndex(std::min(n, boxes[n]->count() - 1));
    form->addRow(QString::fromUtf8(labels[n]), boxes[n]);
  }
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  form->addRow(buttons);
  if (dialog.exec() != QDialog::Accepted) return {};
  return wire::WireNames{boxes[0]->currentText().toStdString(),
                         boxes[1]->currentText().toStdString()};
}

}  // namespace

Recording openRecording(QWidget* parent) {
  const QString path =
      QFileDialog::getOpenFileName(parent, QStringLiteral("Felvétel megnyitása"), {}, filter());
  return path.isEmpty() ? Recording{} : readRecording(parent, path);
}

Recording readRecording(QWidget* parent, const QString& path) {
  Recording recording{nullptr, QFileInfo(path).fileName(), {}};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    tell(parent,
         QStringLiteral("%1: nem olvasható. Ellenőrizze a fájlt és a jogait!").arg(recording.name));
    return recording;
  }
  const QByteArray bytes = file.readAll();
  const std::string_view dump(bytes.constData(), static_cast<std::size_t>(bytes.size()));
  wire::ReadTrace read = wire::readVcd(dump, {});
  while (read.needsNames && !read.names.empty()) {
    const std::optional<wire::WireNames> names = askForWires(parent, read.names);
    if (!names) return recording;
    read = wire::readVcd(dump, *names);
    if (read.needsNames) tell(parent, toQt(read.fault));
  }
  if (!read.trace) {
    tell(parent,
         QStringLiteral("%1, %2 Válasszon másik felvételt!").arg(recording.name, toQt(read.fault)));
  }
  recording.fault = toQt(read.fault);
  recording.trace = std::move(read.trace);
  return recording;
}

QString saveRecording(QWidget* parent, const wire::Trace& trace) {
  QString path = QFileDialog::getSaveFileName(parent, QStringLiteral("Felvétel mentése"),
                                              QStringLiteral("felvetel.vcd"), filter());
  if (path.isEmpty()) return {};
  // What was there stays until the new one is whole.
  QSaveFile file(path);
  bool written = file.open(QIODevice::WriteOnly);
  if (written) {
    wire::writeVcd(trace, [&](std::string_view piece) {
      const auto size = static_cast<qint64>(piece.size());
      written = file.write(piece.data(), size) == size;
      return written;
    });
  }
  if (written && file.commit()) return QFileInfo(path).fileName();
  tell(parent, QStringLiteral("%1: nem menthető (%2). Adjon meg más helyet!")
                   .arg(QFileInfo(path).fileName(), file.errorString()));
  return {};
}

}  // namespace monitra::signals
