#include "signals/comparison_model.h"

#include <QFont>
#include <algorithm>

#include "signals/message_model.h"
#include "signals/time_scale.h"
#include "widgets/text.h"
#include "wire/message_text.h"

namespace monitra::signals {

using widgets::toQt;

namespace {

QString cell(const wire::Message* message, const wire::Trace& trace) {
  if (message == nullptr) return QStringLiteral("–");
  return QStringLiteral("%1 s  %2: %3")
      .arg(seconds(message->start - trace.start()), 0, 'f', 6)
      .arg(toQt(wire::kindText(message->kind)), toQt(wire::meaning(*message)));
}

}  // namespace

void ComparisonModel::setTraces(const wire::Trace* first, const wire::Trace* second) {
  beginResetModel();
  first_ = first;
  second_ = second;
  pairs_.clear();
  texts_.clear();
  if (first != nullptr && second != nullptr) {
    pairs_ = wire::compare(first->decoder().messages(), second->decoder().messages());
    for (const wire::Pairing& pair : pairs_) {
      texts_.push_back(
          wire::differenceText(pair, first->decoder().messages(), second->decoder().messages()));
    }
    forgotten_ = first->decoder().forgotten();
    count_ = first->decoder().messages().size();
  }
  endResetModel();
}

void ComparisonModel::refresh() {
  if (first_ == nullptr || second_ == nullptr) return;
  const wire::Decoder& decoder = first_->decoder();
  if (decoder.forgotten() == forgotten_ && decoder.messages().size() == count_) return;
  setTraces(first_, second_);
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(pairs_.size());
}

int ComparisonModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

/// The first recording may have forgotten some since it was compared.
const wire::Message* ComparisonModel::first(int row) const {
  const auto& at = pairs_[static_cast<std::size_t>(row)].first;
  const auto gone = static_cast<std::size_t>(first_->decoder().forgotten() - forgotten_);
  return at && *at >= gone ? &first_->decoder().messages()[*at - gone] : nullptr;
}

const wire::Message* ComparisonModel::second(int row) const {
  const auto& at = pairs_[static_cast<std::size_t>(row)].second;
  return at ? &second_->decoder().messages()[*at] : nullptr;
}

int ComparisonModel::differences() const {
  return static_cast<int>(std::ranges::count(pairs_, false, &wire::Pairing::same));
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const wire::Pairing& pair = pairs_[static_cast<std::size_t>(index.row())];
  if (role == Qt::ForegroundRole && !pair.same) return faultColour();
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  switch (index.column()) {
    case First:
      return cell(first(index.row()), *first_);
    case Second:
      return cell(second(index.row()), *second_);
    default:
      return pair.same ? QStringLiteral("egyezik")
                       : toQt(texts_[static_cast<std::size_t>(index.row())]);
  }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const char* const heads[columns] = {"Első", "Második", "Eltérés"};
  return QString::fromUtf8(heads[section]);
}

}  // namespace monitra::signals
