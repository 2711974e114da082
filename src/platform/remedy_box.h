#pragma once

#include <string>

namespace monitra::platform {

/// What stands in the way of something, and what the user can do about it.
struct Remedy {
  std::string text;
  std::string advice;     ///< what to mind; empty if there is nothing
  std::string command;    ///< for a terminal; empty if there is none
  bool canRetry = false;  ///< whether it can be tried again from here
};

/// A dialog that shows a remedy, whose command can be copied from it.
class RemedyBox {
 public:
  RemedyBox() = default;
  RemedyBox(const RemedyBox&) = delete;
  RemedyBox& operator=(const RemedyBox&) = delete;
  virtual ~RemedyBox() = default;

  /// Shows it until the user closes it. True if it is to be tried again.
  virtual bool show(const Remedy& remedy) = 0;
};

}  // namespace monitra::platform
