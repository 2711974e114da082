#include "apps/ctl/terminal.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

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
  std::cout << '\n' << boxLines(text) << " [i/N] " << std::flush;
  std::string answer = "igen (--yes)";
  if (yes_) {
    std::cout << answer << '\n';
  } else if (!std::getline(std::cin, answer)) {
    std::cout << '\n';
    unanswered_ = true;
    return BoxAnswer::No;
  }
  constexpr std::array<std::string_view, 6> agreements{"i", "I", "igen", "Igen", "IGEN", "y"};
  return yes_ || std::ranges::count(agreements, answer) > 0 ? BoxAnswer::Yes : BoxAnswer::No;
}

void printRemedy(std::ostream& out, const platform::Remedy& remedy) {
  out << remedy.text << '\n';
  if (!remedy.advice.empty()) out << remedy.advice << '\n';
  if (!remedy.command.empty()) out << "  " << remedy.command << '\n';
}

std::string printable(std::string text) {
  constexpr char del = 0x7F;
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == del; };
  std::ranges::replace_if(text, isControl, '?');
  return text;
}

std::string boxLines(const std::string& text) {
  std::string lines;
  for (const char c : text) {
    if (c != '\r') lines += c;
  }
  return lines;
}

}  // namespace monitra::ctl
