#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/observation.h"
#include "revisions/fields.h"

namespace monitra::revisions {

/// Whether the Setup in the window is still the one that was last saved, and the one last sent.
/// Compared are the texts of a Setup file, and the numbers of the message. The arguments must
/// outlive it.
class SetupMarks {
 public:
  SetupMarks(timing::SetupPanel& panel, const timing::Kozos& kozos);
  SetupMarks(const SetupMarks&) = delete;
  SetupMarks& operator=(const SetupMarks&) = delete;

  void saved();     ///< the present Setup is in a file, or is the one of the start
  void notSaved();  ///< it may be in no file: saving has failed
  void sent();      ///< it has gone out

  /// A file with these records was opened, of which the fields may have made something else.
  void opened(const std::vector<std::string>& records);

  /// Words for the mark that the Setup has changed; empty while it has not.
  std::string savedMark() const;
  std::string sentMark() const;

  /// What was last saved or opened, and last sent; empty while nothing was.
  const std::optional<Fields>& savedFields() const { return saved_; }
  const std::optional<Fields>& sentFields() const { return sent_; }

  /// Adds a view that is told whenever the Setup or a mark may have changed, until the observation
  /// ends.
  controls::Observation observe(std::function<void()> view) { return views_.add(std::move(view)); }

 private:
  timing::SetupPanel& panel_;
  const timing::Kozos& kozos_;
  controls::Views views_;
  std::optional<Fields> saved_;
  std::optional<Fields> sent_;
  std::vector<controls::Observation> watched_;
};

}  // namespace monitra::revisions
