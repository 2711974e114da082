#pragma once

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "platform/port_registers.h"

/// What every implementation of the registers promises its callers. Who includes this instantiates
/// the suite for what there is to test.
namespace monitra::support {

struct PortUnderTest {
  std::string name;
  std::function<std::unique_ptr<platform::PortRegisters>()> make;
  std::vector<std::int32_t> entries;  ///< data registers that have a port
};

inline void PrintTo(const PortUnderTest& port, std::ostream* stream) {
  *stream << port.name;
}

class PortContract : public testing::TestWithParam<PortUnderTest> {
 protected:
  int read(std::int32_t address) { return port->DlPortReadPortUchar(address); }
  int control(std::int32_t entry) { return read(entry + 2) & 0x0F; }
  void write(std::int32_t address, int value) {
    port->DlPortWritePortUchar(address, static_cast<std::uint8_t>(value));
  }

  std::unique_ptr<platform::PortRegisters> port = GetParam().make();
};

TEST_P(PortContract, ReadsBackEveryValueOfEveryRegisterAndMovesNoOther) {
  for (const std::int32_t entry : GetParam().entries) {
    write(entry, 0x5A);
    for (int value = 0; value < 256; ++value) {
      write(entry + 2, value);
      EXPECT_EQ(control(entry), value & 0x0F);
      EXPECT_EQ(read(entry), 0x5A);
    }
    write(entry + 2, 0x06);
    for (int value = 255; value >= 0; --value) {
      write(entry, value);
      EXPECT_EQ(read(entry), value);
      EXPECT_EQ(control(entry), 0x06);
    }
  }
}

TEST_P(PortContract, WhatItReadOfAControlRegisterCanBeWrittenBack) {
  for (const std::int32_t entry : GetParam().entries) {
    for (const int value : {0x0C, 0x0E, 0x00, 0x0F}) {
      write(entry + 2, value);
      write(entry + 2, read(entry + 2));
      EXPECT_EQ(control(entry), value);
      write(entry, 0xA5);
      EXPECT_EQ(read(entry), 0xA5) << "the data pins still point outwards";
    }
  }
}

TEST_P(PortContract, PortsAreApartAndAnAddressWithoutOneGivesWhatWasLastWritten) {
  const std::vector<std::int32_t>& entries = GetParam().entries;
  for (std::size_t i = 0; i < entries.size(); ++i) write(entries[i], static_cast<int>(i) + 1);
  for (const std::int32_t address : {0x3BC, 0x3BE, 0x7000}) {
    if (std::ranges::count(entries, address) > 0) continue;
    for (const int value : {0x81, 0x7E}) {
      write(address, value);
      EXPECT_EQ(read(address), value);
    }
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(read(entries[i]), static_cast<int>(i) + 1);
  }
}

}  // namespace monitra::support
