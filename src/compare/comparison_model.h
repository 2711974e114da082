#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "revisions/comparison.h"

namespace monitra::compare {

/// The comparison as a table: a row for each field, a column for each Setup. What differs from the
/// present Setup is marked.
class ComparisonModel : public QAbstractTableModel {
 public:
  /// The comparison must outlive it.
  explicit ComparisonModel(revisions::Comparison& comparison) : comparison_(comparison) {}

  /// Shows what has changed meanwhile. True if a mark in some row has come or gone.
  bool refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Cell {
    QString text;
    bool differs = false;

    bool operator==(const Cell&) const = default;
  };

  std::vector<Cell> cellsOf(std::size_t column) const;

  revisions::Comparison& comparison_;
  std::vector<std::vector<Cell>> shown_;  ///< by column
};

}  // namespace monitra::compare
