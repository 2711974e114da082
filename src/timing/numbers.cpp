#include "timing/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace monitra::timing {

namespace {

constexpr bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// A number as it stands at the head of a text.
struct NumberHead {
  std::string_view digits;  ///< digits and the point, without the sign
  bool negative = false;
  bool found = false;
  std::size_t end = 0;  ///< first position behind the number
};

NumberHead numberHead(std::string_view text) {
  NumberHead head;
  std::size_t at = text.find_first_not_of(' ');
  if (at == std::string_view::npos) return head;
  if (text[at] == '-' || text[at] == '+') head.negative = text[at++] == '-';
  const std::size_t start = at;
  bool point = false;
  for (; at < text.size(); ++at) {
    if (isDigit(text[at])) {
      head.found = true;
    } else if (text[at] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  head.digits = text.substr(start, at - start);
  head.end = at;
  return head;
}

}  // namespace

double Ertek(std::string_view text) {
  const NumberHead head = numberHead(text);
  if (!head.found) return 0;
  double value = 0;
  const char* const begin = head.digits.data();
  const auto result =
      std::from_chars(begin, begin + head.digits.size(), value, std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    const bool below1 = head.digits.find_first_not_of('0') == head.digits.find('.');
    value = below1 ? 0 : std::numeric_limits<double>::max();
  }
  return head.negative && value != 0 ? -value : value;
}

bool isNumber(std::string_view text) {
  const NumberHead head = numberHead(text);
  return head.found && text.find_first_not_of(' ', head.end) == std::string_view::npos;
}

std::string decimalText(double x) {
  if (x == 0) return "0";
  constexpr int significant = 15;
  std::array<char, 32> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(x),
                    std::chars_format::scientific, significant - 1);
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t e = scientific.find('e');
  int exponent = 0;
  const bool negativeExponent = scientific[e + 1] == '-';
  std::from_chars(scientific.data() + e + 2, end, exponent);
  if (negativeExponent) exponent = -exponent;

  std::string digits{scientific[0]};
  digits += scientific.substr(2, e - 2);
  digits.erase(digits.find_last_not_of('0') + 1);

  std::string text;
  if (exponent < 0) {
    text = "." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  } else {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= whole) {
      text = digits + std::string(whole - digits.size(), '0');
    } else {
      text = digits.substr(0, whole) + "." + digits.substr(whole);
    }
  }
  return x < 0 ? "-" + text : text;
}

std::string Levag(double x, int n) {
  return decimalText(x).substr(0, static_cast<std::size_t>(n));
}

std::string numberText(double x) {
  return x < 0 ? decimalText(x) : " " + decimalText(x);
}

int wholeNumber(double x) {
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::nearbyint(std::clamp(x, lowest, highest)));
}

}  // namespace monitra::timing
