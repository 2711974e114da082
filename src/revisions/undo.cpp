#include "revisions/undo.h"

#include <utility>

namespace monitra::revisions {

namespace {

constexpr FieldIndex spm = fieldCount;

/// The one field that differs; T2 and T3 of an axis, of which each may move the other, count as
/// one. None if there are more.
std::optional<FieldIndex> changedField(const Snapshot& before, const Snapshot& after) {
  std::optional<FieldIndex> changed;
  bool more = before.version != after.version || before.edition != after.edition;
  const auto add = [&](FieldIndex field) {
    if (field >= timing::T3X && field <= timing::T3Z) field -= timing::T3X - timing::T2X;
    more = more || changed.value_or(field) != field;
    changed = field;
  };
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    if (before.records[field] != after.records[field]) add(field);
  }
  if (before.Spm != after.Spm) add(spm);
  return more ? std::nullopt : changed;
}

}  // namespace

void Undo::start() {
  present_ = snapshotOf(desk_);
  past_.clear();
  future_.clear();
  open_.reset();
}

void Undo::settle() {
  Snapshot now = snapshotOf(desk_);
  if (now == present_) return;
  future_.clear();
  const std::optional<FieldIndex> changed = changedField(present_, now);
  if (!open_ || open_ != changed) {
    past_.push_back(std::move(present_));
    open_ = changed;
  } else if (past_.back() == now) {
    past_.pop_back();
    open_.reset();
  }
  present_ = std::move(now);
}

void Undo::close() {
  settle();
  open_.reset();
}

bool Undo::undo() {
  close();
  if (past_.empty()) return false;
  go(past_, future_);
  return true;
}

bool Undo::redo() {
  close();
  if (future_.empty()) return false;
  go(future_, past_);
  return true;
}

void Undo::go(std::vector<Snapshot>& from, std::vector<Snapshot>& to) {
  restore(desk_, from.back());
  to.push_back(std::exchange(present_, std::move(from.back())));
  from.pop_back();
}

}  // namespace monitra::revisions
