#include "link/port_selection.h"

#include <charconv>
#include <utility>

#include "timing/numbers.h"

namespace monitra::link {

namespace {

std::string hexCaption(std::int32_t address) {
  std::string digits;
  for (auto rest = static_cast<std::uint32_t>(address); rest != 0; rest /= 16) {
    digits.insert(digits.begin(), "0123456789ABCDEF"[rest % 16]);
  }
  return "H" + (digits.empty() ? "0" : digits);
}

}  // namespace

std::int32_t portAddress(std::string_view entry) {
  constexpr std::string_view prefix = "&H";
  std::int32_t address = 0;
  if (entry.starts_with(prefix)) entry.remove_prefix(prefix.size());
  std::from_chars(entry.data(), entry.data() + entry.size(), address, 16);
  return address;
}

std::int32_t controlAddress(std::int32_t dataAddress) {
  switch (dataAddress) {
    case 632:
      return 634;
    case 888:
      return 890;
    case 956:
      return 958;
    default:
      return 0;
  }
}

std::string bitCaption(const PinMap& pins, int i) {
  std::string caption = timing::numberText(i) + ". Bit";
  if (i == pins.XStepBit) caption += "  XStep";
  if (i == pins.XDirBit) caption += "  XDir";
  if (i == pins.YStepBit) caption += "  YStep";
  if (i == pins.YDirBit) caption += "  YDir";
  if (i == pins.ZStepBit) caption += "  ZStep";
  if (i == pins.ZDirBit) caption += "  ZDir";
  return caption;
}

PortSelection::PortSelection(PortPanel& panel, std::function<void(Pcb)> storeChoice)
    : panel_(panel), storeChoice_(std::move(storeChoice)) {
  panel_.Mpcb32.Click.handle([this] { Mpcb32_Click(); });
  panel_.Mpcb40.Click.handle([this] { Mpcb40_Click(); });
}

void PortSelection::PortCimFrissit() {
  AdatPort = selectedAddress();
  if (const std::int32_t control = controlAddress(AdatPort); control != 0) VezerloPort = control;
}

void PortSelection::PortCimKiir() {
  panel_.Cim1.Caption = hexCaption(AdatPort);
  panel_.Cim2.Caption = hexCaption(VezerloPort);
}

void PortSelection::BitFeliratok() {
  for (int i = 0; i < 8; ++i) panel_.Bitcim[i].Caption = bitCaption(pins(), i);
  panel_.Bitcim[8].Caption = timing::numberText(pins().SpindleBit) + ". Bit  Spindle";
}

void PortSelection::PcbAlkalmaz(Pcb pcb) {
  selectPcb(pcb);
  showPcb();
  BitFeliratok();
}

void PortSelection::Mpcb32_Click() {
  choosePcb(Pcb::V32);
}

void PortSelection::Mpcb40_Click() {
  choosePcb(Pcb::V4x);
}

void PortSelection::choosePcb(Pcb pcb) {
  selectPcb(pcb);
  BitFeliratok();
  storeChoice_(pcb);
  showPcb();
}

void PortSelection::selectPcb(Pcb pcb) {
  const bool v32 = pcb == Pcb::V32;
  (v32 ? panel_.Mpcb32 : panel_.Mpcb40).Checked = true;
  (v32 ? panel_.Mpcb40 : panel_.Mpcb32).Checked = false;
  pcb_ = pcb;
}

void PortSelection::showPcb() {
  panel_.PCBV.Caption = pcb_ == Pcb::V32 ? "PCB V3.2" : "PCB V4.x";
}

}  // namespace monitra::link
