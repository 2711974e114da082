#pragma once

#include <optional>
#include <vector>

#include "revisions/restorer.h"

namespace monitra::revisions {

/// Undo and redo over the whole Setup, as far back as the run goes. What the user does in one go on
/// one field, the coupled one with it, is one step.
class Undo {
 public:
  explicit Undo(const Desk& desk) : desk_(desk), present_(snapshotOf(desk)) {}

  /// From here on; nothing before can be undone.
  void start();

  /// What has changed since the last call is a step, or part of the last one if that is still open
  /// and of the same field. To be called whenever an event of the user has run to its end.
  void settle();

  /// Settles, and ends the last step: what comes next is one of its own.
  void close();

  /// One step back, or forward again. False, and nothing changed, if there is none.
  bool undo();
  bool redo();

  bool canUndo() const { return !past_.empty(); }
  bool canRedo() const { return !future_.empty(); }

 private:
  void go(std::vector<Snapshot>& from, std::vector<Snapshot>& to);

  Desk desk_;
  Snapshot present_;
  std::vector<Snapshot> past_;      ///< the states before each step, the last one on top
  std::vector<Snapshot> future_;    ///< the states after each undone one
  std::optional<FieldIndex> open_;  ///< the last step's field, while more of it may come
};

}  // namespace monitra::revisions
