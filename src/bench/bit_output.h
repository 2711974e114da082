#pragma once

#include "bench/bit_panel.h"
#include "bench/jog_panel.h"
#include "link/port_panel.h"
#include "link/port_selection.h"
#include "platform/port_registers.h"

namespace monitra::bench {

/// Puts the boxes of the bits on the port's registers, or zeroes them; both stop the pulse
/// generator. Binds its handlers to the bit panel; all arguments must outlive it.
class BitOutput {
 public:
  BitOutput(BitPanel& panel, JogPanel& jog, const link::PortPanel& portPanel,
            link::PortSelection& port, platform::PortRegisters& registers);

  void Kuld_Click();
  void Torles_Click();

  controls::Event sent;  ///< both registers have been written

 private:
  JogPanel& jog_;
  const link::PortPanel& portPanel_;
  link::PortSelection& port_;
  platform::PortRegisters& registers_;
};

}  // namespace monitra::bench
