#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include "wire/trace.h"

namespace monitra::signals {

/// The messages of a recording as a table, a row for each. It follows a recording that grows and
/// forgets.
class MessageModel : public QAbstractTableModel {
 public:
  enum Column { Start, Kind, Meaning, Duration, LongestPause, ShortPhases, columns };

  using QAbstractTableModel::QAbstractTableModel;

  /// Null for none. It must outlive the model or be taken away first.
  void setTrace(const wire::Trace* trace);

  /// The recording has grown.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// What a row has to tell, in full: a Setup's fields, and what differs from the Setup before it.
  QString details(int row) const;

  const wire::Message& message(int row) const;

 private:
  QString cell(int row, Column column) const;
  /// What differs from the Setup before this one; empty if nothing does or there is none.
  QString difference(int row) const;

  const wire::Trace* trace_ = nullptr;
  long forgotten_ = 0;  ///< as of the last refresh
  int count_ = 0;
};

/// The colour of what is wrong, on the palette's ground.
QColor faultColour();

}  // namespace monitra::signals
