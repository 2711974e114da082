#pragma once

#include <QAbstractTableModel>

#include "revisions/upload_history.h"

namespace monitra::compare {

/// The uploads as a table, the newest on top.
class HistoryModel : public QAbstractTableModel {
 public:
  enum Column { When, Port, Board, Changes, columns };

  /// The history must outlive it.
  explicit HistoryModel(revisions::UploadHistory& history) : history_(history) {}

  /// Reads what has come.
  void refresh();
  revisions::UploadHistory& history() const { return history_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  revisions::UploadHistory& history_;
};

}  // namespace monitra::compare
