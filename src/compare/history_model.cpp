#include "compare/history_model.h"

#include "widgets/text.h"

namespace monitra::compare {

void HistoryModel::refresh() {
  beginResetModel();
  history_.refresh();
  endResetModel();
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(history_.size());
}

int HistoryModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  const platform::KeptUpload& kept = history_.kept(row);
  if (role == Qt::ToolTipRole) return widgets::toQt(kept.path);
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case When:
      return widgets::toQt(kept.when);
    case Port:
      return widgets::toQt(kept.port);
    case Board:
      return widgets::toQt(kept.board);
    default:
      return widgets::toQt(history_.changes(row));
  }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  constexpr const char* heads[] = {"Mikor", "Port", "Panel", "Mi változott az előzőhöz képest"};
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QString::fromUtf8(heads[section]);
}

}  // namespace monitra::compare
