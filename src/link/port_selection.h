#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "link/pin_map.h"
#include "link/port_panel.h"

namespace monitra::link {

/// Address of the data register that an entry of LPT names: the hexadecimal digits behind "&H".
std::int32_t portAddress(std::string_view entry);

/// Address of the control register that belongs to a data register; 0 for an unknown one.
std::int32_t controlAddress(std::int32_t dataAddress);

/// Caption of the box for bit i, 0 to 7, of the data register.
std::string bitCaption(const PinMap& pins, int i);

/// Which port and which board revision are selected. Nothing here writes to a port.
/// Binds its handlers to the panel, which must outlive it.
class PortSelection {
 public:
  /// The function stores the user's choice of a board.
  PortSelection(PortPanel& panel, std::function<void(Pcb)> storeChoice);

  void PortCimFrissit();
  void PortCimKiir();
  void BitFeliratok();

  /// Makes a revision the current one: menu checks, pin map, PCBV, captions of the boxes. The
  /// preference is not written.
  void PcbAlkalmaz(Pcb pcb);

  /// The user's choice: the same, and it is stored, after the captions and ahead of PCBV.
  void Mpcb32_Click();
  void Mpcb40_Click();

  Pcb pcb() const { return pcb_; }
  /// The current revision's pins; to be read anew at every use.
  const PinMap& pins() const { return pinMap(pcb_); }
  /// Data register of the entry now selected in LPT.
  std::int32_t selectedAddress() const { return portAddress(panel_.LPT.text()); }

  /// Addresses as of the last PortCimFrissit; 0 before the first.
  std::int32_t AdatPort = 0;
  std::int32_t VezerloPort = 0;

 private:
  void choosePcb(Pcb pcb);
  void selectPcb(Pcb pcb);
  void showPcb();

  PortPanel& panel_;
  std::function<void(Pcb)> storeChoice_;
  Pcb pcb_ = Pcb::V4x;
};

}  // namespace monitra::link
