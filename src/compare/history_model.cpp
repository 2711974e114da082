#include "compare/history_model.h"

#include "widgets/text.h"

namespace monitra::compare {

void HistoryModel::refresh() {
  beginResetModel();
  history_.refresh();
  endResetModel();
}

const revisions::UploadHistory::Entry& HistoryModel::entry(int row) const {
  return history_.entries()[static_cast<std::size_t>(row)];
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(history_.entries().size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
  const revisions::UploadHistory::Entry& shown = entry(index.row());
  if (role == Qt::ToolTipRole) return widgets::toQt(shown.kept.path);
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case When:
      return widgets::toQt(shown.kept.when);
    case Port:
      return widgets::toQt(shown.kept.port);
    case Board:
      return widgets::toQt(shown.kept.board);
    default:
      return widgets::toQt(shown.changes);
  }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr const char* heads[] = {"Mikor", "Port", "Panel", "Mi változott az előzőhöz képest"};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QString::fromUtf8(heads[section]);
}

}  // namespace monitra::compare
