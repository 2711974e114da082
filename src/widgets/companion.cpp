#include "widgets/companion.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <algorithm>
#include <utility>

namespace monitra::widgets {

QTableView* makeTable(QAbstractItemModel* model, const char* name) {
  auto* const table = new QTableView;
  table->setModel(model);
  table->setAccessibleName(QString::fromUtf8(name));
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setTabKeyNavigation(false);
  table->setWordWrap(false);
  const int words = table->fontMetrics().height();
  table->verticalHeader()->setDefaultSectionSize(words + 4);
  QFont headFont = table->horizontalHeader()->font();
  headFont.setBold(true);
  const QFontMetrics heads(headFont);
  for (int column = 0; column < model->columnCount(); ++column) {
    constexpr int air = 14;
    const QString head = model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    table->setColumnWidth(column, std::max(heads.horizontalAdvance(head) + air, words * 5));
  }
  return table;
}

QLabel* makeTellingLabel(const char* name, bool wraps) {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  label->setAccessibleName(QString::fromUtf8(name));
  label->setWordWrap(wraps);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  label->setMinimumHeight(label->fontMetrics().height());
  return label;
}

void tell(QLabel* label, const QString& text) {
  if (label->text() == text) return;
  label->setText(text);
  label->setAccessibleDescription(text);
}

QPushButton* addButton(QHBoxLayout* row, const char* text, const char* tip,
                       std::function<void()> act) {
  auto* const button = new QPushButton(QString::fromUtf8(text));
  button->setToolTip(QString::fromUtf8(tip));
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, button, std::move(act));
  row->addWidget(button);
  return button;
}

}  // namespace monitra::widgets
