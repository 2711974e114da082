#include "apps/ctl/terminal.h"

#include <iostream>
#include <string_view>

#include "apps/ctl/session.h"

namespace monitra::ctl {

using platform::BoxAnswer;
namespace box_style = platform::box_style;

BoxAnswer Terminal::show(const std::string& text, int style) {
  if (box_style::asksYesNo(style)) return ask(text);
  const bool good = box_style::icon(style) == box_style::information;
  (good ? std::cout << '\n' : std::cerr) << boxLines(text) << '\n';
  return BoxAnswer::Ok;
}

BoxAnswer Terminal::ask(const std::string& text) {
  std::cout << '\n' << boxLines(text) << " [I/n] " << std::flush;
  std::string answer = "igen (--yes)";
  if (yes_) {
    std::cout << answer << '\n';
  } else if (!std::getline(std::cin, answer)) {
    std::cout << '\n';
    unanswered_ = true;
    return BoxAnswer::No;
  }
  constexpr std::string_view yesLetters = "iIyY";
  const bool agreed = answer.empty() || yesLetters.find(answer.front()) != std::string_view::npos;
  return agreed ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace monitra::ctl
