#include "shell/window_controls.h"

#include <algorithm>
#include <iterator>

namespace monitra::shell {

namespace {

struct NamedControl {
  std::string_view name;
  AnyControl (*in)(Lap& lap, int index);
};

constexpr NamedControl named[] = {
    {"Xttarto", [](Lap& lap, int) -> AnyControl { return &lap.setup.Xttarto; }},
    {"Yttarto", [](Lap& lap, int) -> AnyControl { return &lap.setup.Yttarto; }},
    {"Zttarto", [](Lap& lap, int) -> AnyControl { return &lap.setup.Zttarto; }},
    {"Funkcio", [](Lap& lap, int) -> AnyControl { return &lap.setup.Funkcio; }},
    {"Ut", [](Lap& lap, int) -> AnyControl { return &lap.setup.Ut; }},
    {"Utfolle", [](Lap& lap, int) -> AnyControl { return &lap.setup.Utfolle; }},
    {"Spm", [](Lap& lap, int) -> AnyControl { return &lap.setup.Spm; }},
    {"Uthossz", [](Lap& lap, int) -> AnyControl { return &lap.setup.Uthossz; }},
    {"Tures", [](Lap& lap, int) -> AnyControl { return &lap.setup.Tures; }},
    {"Turesfolle", [](Lap& lap, int) -> AnyControl { return &lap.setup.Turesfolle; }},
    {"Xegesz", [](Lap& lap, int) -> AnyControl { return &lap.setup.Xegesz; }},
    {"Yegesz", [](Lap& lap, int) -> AnyControl { return &lap.setup.Yegesz; }},
    {"Zegesz", [](Lap& lap, int) -> AnyControl { return &lap.setup.Zegesz; }},
    {"Label15", [](Lap& lap, int) -> AnyControl { return &lap.setup.Label15; }},
    {"Verz", [](Lap& lap, int) -> AnyControl { return &lap.setup.Verz; }},
    {"Vegallas", [](Lap& lap, int) -> AnyControl { return &lap.setup.Vegallas; }},
    {"MBKVilor", [](Lap& lap, int) -> AnyControl { return &lap.setup.MBKVilor; }},
    {"MBKTarso", [](Lap& lap, int) -> AnyControl { return &lap.setup.MBKTarso; }},
    {"MBTallando", [](Lap& lap, int) -> AnyControl { return &lap.setup.MBTallando; }},
    {"MBTValtozo", [](Lap& lap, int) -> AnyControl { return &lap.setup.MBTValtozo; }},
    {"Cim", [](Lap& lap, int) -> AnyControl { return &lap.setup.Cim; }},
    {"lepes", [](Lap& lap, int) -> AnyControl { return &lap.setup.lepes; }},
    {"LineVilor1", [](Lap& lap, int) -> AnyControl { return &lap.setup.LineVilor1; }},
    {"LineVilor2", [](Lap& lap, int) -> AnyControl { return &lap.setup.LineVilor2; }},
    {"LineVilor3", [](Lap& lap, int) -> AnyControl { return &lap.setup.LineVilor3; }},
    {"LineTarso1", [](Lap& lap, int) -> AnyControl { return &lap.setup.LineTarso1; }},
    {"LineTarso2", [](Lap& lap, int) -> AnyControl { return &lap.setup.LineTarso2; }},
    {"Letolt", [](Lap& lap, int) -> AnyControl { return &lap.setup.Letolt; }},
    {"Bar", [](Lap& lap, int) -> AnyControl { return &lap.setup.Bar; }},
    {"LPT", [](Lap& lap, int) -> AnyControl { return &lap.port.LPT; }},
    {"Cim1", [](Lap& lap, int) -> AnyControl { return &lap.port.Cim1; }},
    {"Cim2", [](Lap& lap, int) -> AnyControl { return &lap.port.Cim2; }},
    {"Mpcb32", [](Lap& lap, int) -> AnyControl { return &lap.port.Mpcb32; }},
    {"Mpcb40", [](Lap& lap, int) -> AnyControl { return &lap.port.Mpcb40; }},
    {"PCBV", [](Lap& lap, int) -> AnyControl { return &lap.port.PCBV; }},
    {"Seb", [](Lap& lap, int) -> AnyControl { return &lap.jog.Seb; }},
    {"Impulzus", [](Lap& lap, int) -> AnyControl { return &lap.jog.Impulzus; }},
    {"SpindleGomb", [](Lap& lap, int) -> AnyControl { return &lap.jog.SpindleGomb; }},
    {"Kuld", [](Lap& lap, int) -> AnyControl { return &lap.bits.Kuld; }},
    {"Torles", [](Lap& lap, int) -> AnyControl { return &lap.bits.Torles; }},
    {"TapFel", [](Lap& lap, int) -> AnyControl { return &lap.load.TapFel; }},
    {"TapStop", [](Lap& lap, int) -> AnyControl { return &lap.load.TapStop; }},
    {"Taptext", [](Lap& lap, int) -> AnyControl { return &lap.load.Taptext; }},
    {"LEDsav", [](Lap& lap, int) -> AnyControl { return &lap.load.LEDsav; }},
    {"TulH", [](Lap& lap, int) -> AnyControl { return &lap.load.TulH; }},
    {"Teh200", [](Lap& lap, int) -> AnyControl { return &lap.load.Teh200; }},
    {"Figy", [](Lap& lap, int) -> AnyControl { return &lap.load.Figy; }},
    {"Figy2", [](Lap& lap, int) -> AnyControl { return &lap.load.Figy2; }},
    {"SSTab1", [](Lap& lap, int) -> AnyControl { return &lap.SSTab1; }},
    {"MFSetNyit", [](Lap& lap, int) -> AnyControl { return &lap.MFSetNyit; }},
    {"MFSetMent", [](Lap& lap, int) -> AnyControl { return &lap.MFSetMent; }},
    {"MFkilepes", [](Lap& lap, int) -> AnyControl { return &lap.MFkilepes; }},
    {"Nev", [](Lap& lap, int) -> AnyControl { return &lap.Nev; }},
    {"InfoT", [](Lap& lap, int) -> AnyControl { return &lap.InfoT; }},
    {"PortAllapot", [](Lap& lap, int) -> AnyControl { return &lap.PortAllapot; }},
    {"PortTeendo", [](Lap& lap, int) -> AnyControl { return &lap.PortTeendo; }},
    {"Esemeny", [](Lap& lap, int) -> AnyControl { return &lap.Esemeny; }},
    {"MotorAram", [](Lap& lap, int) -> AnyControl { return &lap.MotorAram; }},
    {"Maromotor", [](Lap& lap, int) -> AnyControl { return &lap.Maromotor; }},
    {"OrajelMagas", [](Lap& lap, int) -> AnyControl { return &lap.OrajelMagas; }},
    {"Jelek", [](Lap& lap, int) -> AnyControl { return &lap.Jelek; }},
    {"FolLe", [](Lap& lap, int i) -> AnyControl { return &lap.setup.FolLe[i]; }},
    {"TF", [](Lap& lap, int i) -> AnyControl { return &lap.setup.TF[i]; }},
    {"T1", [](Lap& lap, int i) -> AnyControl { return &lap.setup.T1[i]; }},
    {"T2", [](Lap& lap, int i) -> AnyControl { return &lap.setup.T2[i]; }},
    {"T3", [](Lap& lap, int i) -> AnyControl { return &lap.setup.T3[i]; }},
    {"Csucsf", [](Lap& lap, int i) -> AnyControl { return &lap.setup.Csucsf[i]; }},
    {"Nhatar", [](Lap& lap, int i) -> AnyControl { return &lap.setup.Nhatar[i]; }},
    {"Bitcim", [](Lap& lap, int i) -> AnyControl { return &lap.port.Bitcim[i]; }},
    {"Invert", [](Lap& lap, int i) -> AnyControl { return &lap.jog.Invert[i]; }},
    {"Mozg", [](Lap& lap, int i) -> AnyControl { return &lap.jog.Mozg[i]; }},
    {"L", [](Lap& lap, int i) -> AnyControl { return &lap.phases.L[i]; }},
    {"Leptet", [](Lap& lap, int i) -> AnyControl { return &lap.phases.Leptet[i]; }},
};

}  // namespace

AnyControl controlOf(Lap& lap, std::string_view name, int index) {
  const auto* const found = std::ranges::find(named, name, &NamedControl::name);
  return found == std::end(named) ? AnyControl{} : found->in(lap, index);
}

void giveCaptions(Lap& lap) {
  for (const ControlDescription& entry : windowControls()) {
    const int elements = std::max(entry.elements.count, 1);
    for (int n = 0; n < elements && !entry.caption.empty(); ++n) {
      const AnyControl control = controlOf(lap, entry.name, entry.elements.first + n);
      if (auto* const label = std::get_if<controls::Label*>(&control)) {
        (*label)->Caption = std::string(entry.caption);
      } else if (auto* const box = std::get_if<controls::CheckBox*>(&control)) {
        (*box)->Caption = std::string(entry.caption);
      }
    }
  }
}

}  // namespace monitra::shell
