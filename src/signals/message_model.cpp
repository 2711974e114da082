#include "signals/message_model.h"

#include <algorithm>

#include "signals/time_scale.h"
#include "widgets/looks.h"
#include "widgets/text.h"
#include "wire/message_text.h"

namespace monitra::signals {

using widgets::toQt;
using wire::Message;

QColor faultColour() {
  return widgets::fitting(widgets::faultOnLight, widgets::faultOnDark);
}

void MessageModel::setTrace(const wire::Trace* trace) {
  beginResetModel();
  trace_ = trace;
  forgotten_ = trace != nullptr ? trace->decoder().forgotten() : 0;
  count_ = trace != nullptr ? static_cast<int>(trace->decoder().messages().size()) : 0;
  endResetModel();
}

void MessageModel::refresh() {
  if (trace_ == nullptr) return;
  const wire::Decoder& decoder = trace_->decoder();
  const int gone = static_cast<int>(std::min<long>(decoder.forgotten() - forgotten_, count_));
  if (gone > 0) {
    beginRemoveRows({}, 0, gone - 1);
    count_ -= gone;
    endRemoveRows();
  }
  forgotten_ = decoder.forgotten();
  const int count = static_cast<int>(decoder.messages().size());
  if (count == count_) return;
  // The last one may just have got its end.
  if (count_ > 0) Q_EMIT dataChanged(index(count_ - 1, 0), index(count_ - 1, columns - 1));
  beginInsertRows({}, count_, count - 1);
  count_ = count;
  endInsertRows();
}

int MessageModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

int MessageModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

const Message& MessageModel::message(int row) const {
  const long behind = forgotten_ - trace_->decoder().forgotten();
  return trace_->decoder().messages()[static_cast<std::size_t>(std::max(0L, row + behind))];
}

QVariant MessageModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count_) return {};
  const auto column = static_cast<Column>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return cell(index.row(), column);
    case Qt::ToolTipRole:
      return details(index.row());
    case Qt::ForegroundRole: {
      const Message& shown = message(index.row());
      const bool marked =
          column == ShortPhases ? shown.shortPhases > 0 : shown.kind == Message::Kind::Unknown;
      return marked ? QVariant(faultColour()) : QVariant();
    }
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter |
                      (column == Kind || column == Meaning ? Qt::AlignLeft : Qt::AlignRight));
    default:
      return {};
  }
}

QString MessageModel::cell(int row, Column column) const {
  const Message& shown = message(row);
  switch (column) {
    case Start:
      return QString::number(seconds(shown.start - trace_->start()), 'f', 6);
    case Kind:
      return toQt(wire::kindText(shown.kind));
    case Meaning: {
      const QString changed = difference(row);
      const QString meaning = toQt(wire::meaning(shown));
      return changed.isEmpty() ? meaning
                               : QStringLiteral("Változott: %1; %2").arg(changed, meaning);
    }
    case Duration:
      return toQt(wire::timeText(shown.end - shown.start));
    case LongestPause:
      return toQt(wire::timeText(shown.longestPause));
    default:
      return QString::number(shown.shortPhases);
  }
}

QVariant MessageModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const char* const heads[columns] = {
      "Idő (s)", "Fajta", "Jelentés", "Időtartam", "Leghosszabb szünet", "Rövid fázis"};
  return QString::fromUtf8(heads[section]);
}

QString MessageModel::difference(int row) const {
  const Message& shown = message(row);
  if (shown.kind != Message::Kind::Setup) return {};
  for (int before = row - 1; before >= 0; --before) {
    if (message(before).kind != Message::Kind::Setup) continue;
    return toQt(wire::setupDifference(message(before).bytes, shown.bytes));
  }
  return {};
}

QString MessageModel::details(int row) const {
  const Message& shown = message(row);
  const QString all = toQt(wire::kindText(shown.kind) + ": " + wire::meaning(shown));
  const QString changed = difference(row);
  return changed.isEmpty()
             ? all
             : QStringLiteral("Változott az előző Setup óta: %1\n%2").arg(changed, all);
}

}  // namespace monitra::signals
