#pragma once

#include <QPointer>

#include "compare/comparison_window.h"
#include "shell/lap.h"

namespace monitra::apps {

/// Has the marks of the Setup open the window "Összevetés", or bring the open one to the front.
class ComparisonButton {
 public:
  /// The Lap must outlive it; the window ends with it at the latest.
  explicit ComparisonButton(shell::Lap& lap);
  ComparisonButton(const ComparisonButton&) = delete;
  ComparisonButton& operator=(const ComparisonButton&) = delete;
  ~ComparisonButton();

  /// Null while there is none.
  compare::ComparisonWindow* window() const { return window_; }

 private:
  void open();

  shell::Lap& lap_;
  QPointer<compare::ComparisonWindow> window_;
};

}  // namespace monitra::apps
