#pragma once

#include <string>
#include <vector>

#include "revisions/comparison.h"
#include "revisions/restorer.h"
#include "revisions/setup_marks.h"
#include "revisions/undo.h"
#include "revisions/upload_history.h"

namespace monitra::revisions {

/// What the Setup in the window was, and the ways back to it.
class Revisions {
 public:
  /// All that the arguments refer to must outlive it.
  Revisions(const Desk& desk, const FileSource& source, platform::UploadArchive& archive);

  /// The present Setup is the one that all begins with.
  void start();

  /// Each of these is a step of its own, and gives words on what came of it.
  std::string undoStep();
  std::string redoStep();
  /// Gives fields the values that a column of the comparison holds.
  std::string revert(std::size_t column, const std::vector<FieldIndex>& fields);
  /// Gives the other axes the fields of this one, 0 to 2.
  std::string copyAxis(int axis);

  SetupMarks marks;
  Undo undo;
  Comparison comparison;
  UploadHistory history;

 private:
  template <class Act>
  std::string told(const char* head, Act act);

  Desk desk_;
};

}  // namespace monitra::revisions
