#include "controls/controls.h"

#include <gtest/gtest.h>

#include "controls/indexed_array.h"

namespace monitra::controls {
namespace {

using Log = std::vector<std::string>;

TEST(Property, RaisesOnceInsideTheAssignmentAndOnlyOnAChange) {
  Property<int> value(5);
  Log log;
  value.observe([&] { log.push_back("view " + std::to_string(value)); });
  value.handle([&] { log.push_back("event " + std::to_string(value)); });
  value = 5;
  EXPECT_EQ(log, Log{});
  value = 6;
  EXPECT_EQ(log, (Log{"view 6", "event 6"}));
}

TEST(Property, HandlerMayAssignNestedAndTheOuterAssignmentGoesOn) {
  Property<int> value(0);
  Log log;
  value.handle([&] {
    log.push_back("in " + std::to_string(value));
    if (value > 9) value = 9;
    log.push_back("out " + std::to_string(value));
  });
  value = 70;
  EXPECT_EQ(log, (Log{"in 70", "in 9", "out 9", "out 9"}));
}

TEST(Property, AssignedFromAnotherTakesItsValueOnly) {
  SpinButton narrow(1, 255, 24);
  const SpinButton wide(1, 65535, 1000);
  int changes = 0;
  narrow.Value.handle([&] { ++changes; });
  narrow.Value = wide.Value;
  EXPECT_EQ(narrow.Value, 255);
  EXPECT_EQ(narrow.Value.max(), 255);
  EXPECT_EQ(changes, 1);
}

TEST(SpinButton, LogicComesFirstAndAPressAtALimitStillRaisesIt) {
  SpinButton spin(1, 255, 254);
  Log log;
  spin.SpinUp.handle([&] { log.push_back("up " + std::to_string(spin.Value)); });
  spin.SpinDown.handle([&] { log.push_back("down " + std::to_string(spin.Value)); });
  spin.Value.handle([&] { log.push_back("change " + std::to_string(spin.Value)); });
  spin.pressUp();
  spin.pressUp();
  EXPECT_EQ(log, (Log{"up 254", "change 255", "up 255"}));
  log.clear();
  spin.Value = 300;
  spin.Value = -7;
  spin.pressDown();
  EXPECT_EQ(log, (Log{"change 1", "down 1"})) << "a value outside the limits takes the nearest";
  log.clear();
  spin.Enabled = false;
  spin.pressUp();
  EXPECT_EQ(log, Log{});
}

TEST(PickList, AlwaysHasASelectedEntry) {
  PickList list({"a", "b", "c"});
  EXPECT_EQ(list.text(), "a");
  list.ListIndex = 7;
  EXPECT_EQ(list.text(), "c");
  list.select(-1);
  EXPECT_EQ(list.text(), "a");
}

TEST(OptionButton, ClicksOnceTheOthersOfItsGroupAreNoLongerSelected) {
  OptionButton a, b;
  a.others = {&b};
  b.others = {&a};
  Log log;
  a.Click.handle([&] { log.push_back(b.Value ? "a beside b" : "a alone"); });
  b.Click.handle([&] { log.push_back(a.Value ? "b beside a" : "b alone"); });
  a.click();
  a.click();
  b.Value = true;
  EXPECT_EQ(log, (Log{"a alone", "b alone"}));
}

TEST(HoldButton, ComesUpOnceHoweverOftenItWentDown) {
  HoldButton button;
  Log log;
  button.MouseDown.handle([&] { log.emplace_back("down"); });
  button.MouseUp.handle([&] { log.emplace_back("up"); });
  button.release();
  for (int twice = 0; twice < 2; ++twice) button.press();
  for (int twice = 0; twice < 2; ++twice) button.release();
  button.press();
  button.Enabled = false;
  button.press();
  EXPECT_EQ(log, (Log{"down", "down", "up", "down", "up"}));
}

TEST(UserActions, DoNothingOnALockedOrDisabledControl) {
  TextBox box("24", true);
  box.type("99");
  EXPECT_EQ(box.Text.get(), "24");
  TextBox line;
  line.type("1000\n5");
  EXPECT_EQ(line.Text.get(), "1000") << "a pasted text of several lines";
  CheckBox check;
  check.Enabled = false;
  check.click();
  EXPECT_FALSE(check.Checked);
  PushButton button(false);
  int clicks = 0;
  button.Click.handle([&] { ++clicks; });
  button.click();
  button.Enabled = true;
  button.click();
  EXPECT_EQ(clicks, 1);
}

#ifndef NDEBUG
TEST(IndexedArrayDeathTest, StopsOnAnIndexOfAnotherGroup) {
  IndexedArray<int, 6, 3> group;
  group[7] = 24;
  EXPECT_EQ(group[7], 24);
  EXPECT_DEATH(group[0] = 1, "index >= first");
  EXPECT_DEATH(group[9] = 1, "index < end");
}
#endif

}  // namespace
}  // namespace monitra::controls
