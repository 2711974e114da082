#include "desktop/qt_remedy_box.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

/// The command, to be marked and copied by hand or by the button beside it.
QHBoxLayout* commandRow(const QString& command) {
  auto* const row = new QHBoxLayout;
  auto* const line = new QLineEdit(command);
  line->setObjectName(QStringLiteral("command"));
  line->setReadOnly(true);
  line->setCursorPosition(0);
  line->setAccessibleName(QStringLiteral("Parancs a terminálba"));
  constexpr int margin = 24;
  line->setMinimumWidth(line->fontMetrics().horizontalAdvance(command) + margin);
  auto* const copy = new QPushButton(QStringLiteral("&Másolás"));
  copy->setObjectName(QStringLiteral("copy"));
  copy->setAutoDefault(false);
  QObject::connect(copy, &QPushButton::clicked, line, [line] {
    line->selectAll();
    QApplication::clipboard()->setText(line->text());
  });
  row->addWidget(line, 1);
  row->addWidget(copy);
  return row;
}

QLabel* paragraph(const std::string& text) {
  constexpr int width = 420;
  auto* const label = new QLabel(toQt(text));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(width);
  return label;
}

}  // namespace

bool QtRemedyBox::show(const platform::Remedy& remedy) {
  QDialog dialog(parent_);
  dialog.setWindowTitle(title_);
  auto* const rows = new QVBoxLayout(&dialog);
  for (const std::string& text : {remedy.text, remedy.advice}) {
    if (!text.empty()) rows->addWidget(paragraph(text));
  }
  if (!remedy.command.empty()) {
    rows->addWidget(new QLabel(QStringLiteral("Parancs a terminálba:")));
    rows->addLayout(commandRow(toQt(remedy.command)));
  }
  auto* const buttons = new QDialogButtonBox;
  QPushButton* const close =
      buttons->addButton(QStringLiteral("&Bezárás"), QDialogButtonBox::RejectRole);
  close->setDefault(true);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (remedy.canRetry) {
    buttons->addButton(QStringLiteral("Ú&jra próbálja"), QDialogButtonBox::AcceptRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  }
  rows->addWidget(buttons);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace monitra::desktop
