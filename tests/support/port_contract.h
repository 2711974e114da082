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

/// What was read of a control register can be written back, and the data pins still point outwards.
TEST_P(PortContract, ReadsBackEveryValueOfEveryRegisterAndMovesNoOther) {
  for (const std::int32_t entry : GetParam().entries) {
    write(entry, 0x5A);
    for (int value = 0; value < 256; ++value) {
      write(entry + 2, value);
      write(entry + 2, read(entry + 2));
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

TEST_P(PortContract, PortsAreApartAndAnAddressWithoutOneGivesWhatWasLastWritten) {
  std::vector<std::int32_t> addresses = GetParam().entries;
  for (const std::int32_t other : {0x3BC, 0x3BE, 0x7000}) {
    if (std::ranges::count(addresses, other) == 0) addresses.push_back(other);
  }
  for (const int change : {0x00, 0xFF}) {
    for (const std::int32_t address : addresses) write(address, (address / 2 & 0xFF) ^ change);
    for (const std::int32_t address : addresses) {
      EXPECT_EQ(read(address), (address / 2 & 0xFF) ^ change);
    }
  }
}

}  // namespace monitra::support
