#include "controls/controls.h"

#include <gtest/gtest.h>
#include <map>
#include <memory>

#include "controls/indexed_array.h"
#include "support/same.h"

namespace monitra::controls {
namespace {

using namespace support;

TEST(Property, StoresThenTellsTheViewsThenTheHandlerAndOnlyOnAChange) {
  Property<int> value(5), other;
  Journal journal;
  const auto tell = [&](const char* who) { journal.push_back(who + std::to_string(value)); };
  const Observation views[] = {value.observe([=] { tell("a "); }),
                               value.observe([=] { tell("b "); })};
  value.handle([] { FAIL() << "there is one slot"; });
  value.handle([&] {
    tell("in ");
    if (value > 9) value = 9;
    tell("out ");
  });
  value = 5;
  value = 70;
  other = value;
  other = 3;
  EXPECT_TRUE(same(journal, {"a 70", "b 70", "in 70", "a 9", "b 9", "in 9", "out 9", "out 9"}));
  value = other;
  EXPECT_EQ(journal.back(), "out 3") << "the number is taken over and nothing else";
}

TEST(Property, TellsViewsThatComeAndGoAtAnyTime) {
  auto value = std::make_unique<Property<int>>();
  std::map<char, Observation> views;
  Journal journal;
  const auto add = [&](
                       char who, const std::function<void()>& then = [] {}) {
    views[who] = value->observe([&, who, then] {
      then();
      journal.push_back(who + std::to_string(*value));
    });
  };
  add('a');
  add('b', [&] { views.erase('b'); });
  add('c', [&] { views.erase('d'); });
  add('d');
  add('e', [&] {
    if (*value == 1) add('f');
  });
  value->handle([&] {
    views.erase('a');
    if (*value < 3) *value = *value + 1;
  });
  *value = 1;
  EXPECT_TRUE(same(journal, {"a1", "b1", "c1", "e1", "c2", "e2", "f2", "c3", "e3", "f3"}));
  value.reset();
  views.erase('e');
}

TEST(SpinButton, RaisesAPressAheadOfTheMoveAndAtALimitToo) {
  SpinButton spin(1, 255, 300);
  Journal journal;
  const auto tell = [&](const char* what) { journal.push_back(what + std::to_string(spin.Value)); };
  spin.SpinUp.handle([&] { tell("up "); });
  spin.SpinDown.handle([&] { tell("down "); });
  spin.Value.handle([&] { tell("change "); });
  spin.pressUp();
  spin.pressDown();
  spin.pressUp();
  spin.Value = -7;
  spin.pressDown();
  spin.Value = SpinButton(1, 65535, 1000).Value;
  EXPECT_TRUE(same(journal, {"up 255", "down 255", "change 254", "up 254", "change 255", "change 1",
                             "down 1", "change 255"}));
}

TEST(TextBox, TakesOneLineUnlessItIsLockedOrDisabled) {
  TextBox box("24"), locked("24", true);
  for (const bool enabled : {false, true}) {
    for (TextBox* const each : {&box, &locked}) {
      each->Enabled = enabled;
      each->type("1000\n5");
    }
    EXPECT_EQ(box.Text.get() + " " + locked.Text.get(), enabled ? "1000 24" : "24 24");
  }
}

#ifndef NDEBUG
TEST(IndexedArrayDeathTest, StopsOnAnIndexOfAnotherGroup) {
  IndexedArray<int, 6, 3> group;
  group[8] = 24;
  EXPECT_EQ(group[8], 24);
  EXPECT_DEATH(group[5] = 1, "index >= first");
  EXPECT_DEATH(group[9] = 1, "index < end");
}
#endif

}  // namespace
}  // namespace monitra::controls
