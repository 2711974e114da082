#pragma once

#include <iosfwd>
#include <string>

#include "platform/message_box.h"
#include "platform/remedy_box.h"

namespace monitra::ctl {

/// The terminal in the place of message boxes.
class Terminal {
 public:
  /// With yes every question is answered so.
  explicit Terminal(bool yes) : yes_(yes) {}

  /// Prints the box, a bad message to standard error, and takes the answer to a question from
  /// standard input; all but a plain Yes is a No, its end as well.
  platform::BoxAnswer show(const std::string& text, int style);

  bool unanswered() const { return unanswered_; }

 private:
  platform::BoxAnswer ask(const std::string& text);

  bool yes_;
  bool unanswered_ = false;
};

/// Prints what stands in the way, what to mind and the command.
void printRemedy(std::ostream& out, const platform::Remedy& remedy);

/// A text for the terminal: "?" in the place of each control character.
std::string printable(std::string text);

/// A box's text with line feeds only.
std::string boxLines(const std::string& text);

}  // namespace monitra::ctl
