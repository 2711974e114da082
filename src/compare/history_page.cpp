#include "compare/history_page.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>
#include <utility>

#include "widgets/companion.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::compare {

using Entry = revisions::UploadHistory::Entry;

HistoryPage::HistoryPage(revisions::UploadHistory& history, Act open, Act compare)
    : model_(history),
      table_(widgets::makeTable(&model_, "Feltöltések")),
      details_(widgets::makeTellingLabel("A kijelölt feltöltés", true)) {
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->setColumnWidth(
      HistoryModel::When,
      table_->fontMetrics().horizontalAdvance(QStringLiteral("8888-88-88 88:88:88")) + 14);
  QHBoxLayout* const buttons = widgets::flatRow();
  widgets::addButton(buttons, "Összevetés a m&ostanival", "Oszlopként a „Mi változott?” lapra",
                     [this, act = std::move(compare)] {
                       withChosen([&act](const Entry& entry) { act(entry.kept.path); });
                     });
  widgets::addButton(buttons, "Meg&nyitás az ablakban", "A főablak Setupja ez lesz",
                     [this, act = std::move(open)] {
                       withChosen([&act](const Entry& entry) { act(entry.kept.path); });
                     });
  widgets::addButton(buttons, "Más&olás szövegként", "A vágólapra", [this] {
    withChosen([this](const Entry& entry) {
      QGuiApplication::clipboard()->setText(widgets::toQt(revisions::entryText(entry)));
      widgets::tell(details_, QStringLiteral("A vágólapon van."));
    });
  });
  buttons->addStretch();
  auto* const rows = new QVBoxLayout(this);
  rows->setSpacing(widgets::smallGap);
  rows->addLayout(buttons);
  rows->addWidget(table_, 1);
  rows->addWidget(details_);
  QObject::connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                   [this](const QModelIndex& now) {
                     if (now.isValid()) {
                       widgets::tell(details_, widgets::toQt(model_.entry(now.row()).changes));
                     }
                   });
}

void HistoryPage::refresh() {
  model_.refresh();
  if (model_.rowCount() > 0) return table_->selectRow(0);
  widgets::tell(details_, QStringLiteral("Még nem volt feltöltés."));
}

void HistoryPage::withChosen(const std::function<void(const Entry&)>& act) {
  const QModelIndex chosen = table_->currentIndex();
  if (!chosen.isValid()) return widgets::tell(details_, QStringLiteral("Jelöljön ki egy sort!"));
  const Entry entry = model_.entry(chosen.row());  // the list may be read anew meanwhile
  act(entry);
}

}  // namespace monitra::compare
