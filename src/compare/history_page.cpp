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
                       withChosen([&](std::size_t chosen) { act(pathOf(chosen)); });
                     });
  widgets::addButton(buttons, "Meg&nyitás az ablakban", "A főablak Setupja ez lesz",
                     [this, act = std::move(open)] {
                       withChosen([&](std::size_t chosen) { act(pathOf(chosen)); });
                     });
  widgets::addButton(buttons, "Másolás &szövegként", "A vágólapra", [this] {
    withChosen([this](std::size_t chosen) {
      QGuiApplication::clipboard()->setText(widgets::toQt(model_.history().text(chosen)));
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
                     if (!now.isValid()) return;
                     const auto chosen = static_cast<std::size_t>(now.row());
                     widgets::tell(details_, widgets::toQt(model_.history().changes(chosen)));
                   });
}

void HistoryPage::follow() {
  if (shown_ != model_.history().keptNow()) refresh();
}

void HistoryPage::refresh() {
  shown_ = model_.history().keptNow();
  model_.refresh();
  if (model_.rowCount() > 0) return table_->selectRow(0);
  widgets::tell(details_, QStringLiteral("Még nem volt feltöltés."));
}

void HistoryPage::withChosen(const std::function<void(std::size_t)>& act) {
  const QModelIndex chosen = table_->currentIndex();
  if (!chosen.isValid()) return widgets::tell(details_, QStringLiteral("Jelöljön ki egy sort!"));
  act(static_cast<std::size_t>(chosen.row()));
}

/// The list may be read anew by whoever gets it.
std::string HistoryPage::pathOf(std::size_t chosen) const {
  return model_.history().kept(chosen).path;
}

}  // namespace monitra::compare
