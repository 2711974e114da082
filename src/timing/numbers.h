#pragma once

#include <string>
#include <string_view>

namespace monitra::timing {

/// The number at the head of a text: blanks, an optional sign, digits with at most one "." among
/// them. Reading stops at the first character that can't continue it; no number gives 0. The
/// locale plays no part.
double Ertek(std::string_view text);

/// Whether the whole text, blanks at either end apart, is one number in the sense of Ertek.
bool isNumber(std::string_view text);

/// Decimal text of up to 15 significant digits: no exponent, no trailing zeros, no zero ahead of
/// the point of a number below 1, "-" ahead of a negative number.
std::string decimalText(double x);

/// The first n characters of the decimal text of a non-negative number; cut, not rounded.
std::string Levag(double x, int n);

/// The decimal text with one blank in front, or a minus sign in that place.
std::string numberText(double x);

/// The nearest whole number, a tie going to the even neighbour; the nearest int if it is none.
int wholeNumber(double x);

}  // namespace monitra::timing
