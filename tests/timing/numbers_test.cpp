#include "timing/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace monitra::timing {
namespace {

TEST(Ertek, ReadsTheNumberAtTheHeadOfAText) {
  const std::string digits(400, '9');
  for (const auto* text : {"", "   ", "abc", ".", "- 5", "--5", "-", "0x1F", "&H378", "\t5", "inf",
                           "nan", "í5", "-0", ",5"}) {
    EXPECT_EQ(Ertek(text), 0) << text;
  }
  for (const auto* text :
       {"5", "  5", "05", "+5", "5.", "5,7", "5 8", "5e3", "5\t", "5abc", "5-"}) {
    EXPECT_EQ(Ertek(text), 5) << text;
  }
  EXPECT_EQ(Ertek("-5"), -5);
  EXPECT_EQ(Ertek(".5"), 0.5);
  EXPECT_EQ(Ertek("1.2.3"), 1.2);
  EXPECT_EQ(Ertek(digits), std::numeric_limits<double>::max());
  EXPECT_EQ(Ertek("-" + digits), -std::numeric_limits<double>::max());
  EXPECT_EQ(Ertek("0." + std::string(400, '0') + "1"), 0);
  EXPECT_FALSE(std::signbit(Ertek("-0")));
}

TEST(DecimalText, HasFifteenDigitsNoExponentAndNoZeroAheadOfThePoint) {
  EXPECT_EQ(decimalText(0), "0");
  EXPECT_EQ(decimalText(50), "50");
  EXPECT_EQ(decimalText(-0.5), "-.5");
  EXPECT_EQ(decimalText(1e-7), ".0000001");
  EXPECT_EQ(decimalText(0.1 + 0.2), ".3");
  EXPECT_EQ(decimalText(1 / 0.0048), "208.333333333333");
  EXPECT_EQ(decimalText(123456789012345678.0), "123456789012346000");
  EXPECT_EQ(decimalText(1e21), "1000000000000000000000");
  EXPECT_EQ(Levag(208.333333333333, 7), "208.333");
  EXPECT_EQ(Levag(0.390625, 4), ".390");
  EXPECT_EQ(Levag(196605, 5), "19660") << "cut, not rounded";
  EXPECT_EQ(numberText(0), " 0");
  EXPECT_EQ(numberText(32755), " 32755");
  EXPECT_EQ(numberText(-1), "-1");
}

TEST(WholeNumber, RoundsTiesToEvenAndStaysAnInt) {
  for (const double tie : {11.5, 12.5, 12.4, 11.7}) EXPECT_EQ(wholeNumber(tie), 12) << tie;
  EXPECT_EQ(wholeNumber(-0.5), 0);
  EXPECT_EQ(wholeNumber(-1.5), -2);
  EXPECT_EQ(wholeNumber(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(wholeNumber(-1e300), std::numeric_limits<int>::min());
}

}  // namespace
}  // namespace monitra::timing
