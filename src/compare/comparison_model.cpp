#include "compare/comparison_model.h"

#include <QFont>

#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::compare {

using revisions::FieldIndex;

bool ComparisonModel::refresh() {
  comparison_.refresh();
  const std::size_t columns = comparison_.columns().size();
  if (columns != shown_.size()) {
    beginResetModel();
    shown_.clear();
    for (std::size_t column = 0; column < columns; ++column) shown_.push_back(cellsOf(column));
    endResetModel();
    return true;
  }
  bool marksChanged = false;
  for (std::size_t column = 0; column < columns; ++column) {
    std::vector<Cell> cells = cellsOf(column);
    for (FieldIndex field = 0; field < cells.size(); ++field) {
      if (cells[field] == shown_[column][field]) continue;
      marksChanged = marksChanged || cells[field].differs != shown_[column][field].differs;
      shown_[column][field] = std::move(cells[field]);
      const QModelIndex at = index(static_cast<int>(field), static_cast<int>(column));
      Q_EMIT dataChanged(at, at);
    }
  }
  return marksChanged;
}

std::vector<ComparisonModel::Cell> ComparisonModel::cellsOf(std::size_t column) const {
  const revisions::Fields& fields = comparison_.columns()[column].fields;
  std::vector<Cell> cells;
  cells.reserve(revisions::fieldCount);
  for (FieldIndex field = 0; field < revisions::fieldCount; ++field) {
    cells.push_back(
        {widgets::toQt(revisions::shownText(fields, field)), comparison_.differs(column, field)});
  }
  return cells;
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(revisions::fieldCount);
}

int ComparisonModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
  const Cell& cell =
      shown_[static_cast<std::size_t>(index.column())][static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return cell.differs ? QStringLiteral("≠ ") + cell.text : cell.text;
    case Qt::ToolTipRole:
      return cell.text;
    case Qt::AccessibleTextRole:
      return cell.differs ? cell.text + QStringLiteral(", eltér") : cell.text;
    case Qt::ForegroundRole:
      if (!cell.differs) return {};
      return widgets::fitting(widgets::warningOnLight, widgets::warningOnDark);
    case Qt::FontRole: {
      QFont font;
      font.setBold(cell.differs);
      return font;
    }
    default:
      return {};
  }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto at = static_cast<std::size_t>(section);
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? widgets::toQt(revisions::fieldLabel(at)) : QVariant();
  }
  const revisions::Comparison::Column& column = comparison_.columns()[at];
  if (role == Qt::DisplayRole) return widgets::toQt(column.name);
  return role == Qt::ToolTipRole ? widgets::toQt(column.path) : QVariant();
}

}  // namespace monitra::compare
