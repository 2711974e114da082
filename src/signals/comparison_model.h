#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "wire/comparison.h"
#include "wire/trace.h"

namespace monitra::signals {

/// The messages of two recordings side by side, as a table.
class ComparisonModel : public QAbstractTableModel {
 public:
  enum Column { First, Second, Difference, columns };

  using QAbstractTableModel::QAbstractTableModel;

  /// Both must outlive the model or be taken away first; null for none.
  void setTraces(const wire::Trace* first, const wire::Trace* second);

  /// Compares anew if the first recording has got or forgotten a message.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// The messages of a row; null where one has no counterpart.
  const wire::Message* first(int row) const;
  const wire::Message* second(int row) const;
  int differences() const;

 private:
  const wire::Trace* first_ = nullptr;
  const wire::Trace* second_ = nullptr;
  std::vector<wire::Pairing> pairs_;
  std::vector<std::string> texts_;  ///< what differs in each
  long forgotten_ = 0;              ///< of the first one, when it was compared
  std::size_t count_ = 0;
};

}  // namespace monitra::signals
