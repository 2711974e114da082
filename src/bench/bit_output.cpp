#include "bench/bit_output.h"

#include <cstdint>

namespace monitra::bench {

BitOutput::BitOutput(BitPanel& panel, JogPanel& jog, const link::PortPanel& portPanel,
                     link::PortSelection& port, platform::PortRegisters& registers)
    : jog_(jog), portPanel_(portPanel), port_(port), registers_(registers) {
  panel.Kuld.Click.handle([this] { Kuld_Click(); });
  panel.Torles.Click.handle([this] { Torles_Click(); });
}

void BitOutput::Kuld_Click() {
  port_.PortCimFrissit();
  port_.PortCimKiir();
  if (jog_.Timer1.Enabled) {
    jog_.Impulzus.Value = false;
    jog_.Timer1.Enabled = false;
    jog_.SpindleGomb.Value = false;
  }
  int data = 0;
  for (int i = 0; i < 8; ++i) {
    if (portPanel_.Bitcim[i].Checked) data += 1 << i;
  }
  registers_.DlPortWritePortUchar(port_.AdatPort, static_cast<std::uint8_t>(data));
  const std::uint8_t spindle = link::mask(port_.pins().SpindleBit);
  registers_.DlPortWritePortUchar(port_.VezerloPort, portPanel_.Bitcim[8].Checked ? spindle : 0);
  sent.raise();
}

void BitOutput::Torles_Click() {
  jog_.Timer1.Enabled = false;
  jog_.Impulzus.Value = false;
  port_.PortCimFrissit();
  port_.PortCimKiir();
  registers_.DlPortWritePortUchar(port_.AdatPort, 0);
  registers_.DlPortWritePortUchar(port_.VezerloPort, 0);
  sent.raise();
}

}  // namespace monitra::bench
