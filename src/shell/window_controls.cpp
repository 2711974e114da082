#include "shell/window_controls.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "shell/control_name.h"

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
    {"MentesJel", [](Lap& lap, int) -> AnyControl { return &lap.MentesJel; }},
    {"KuldesJel", [](Lap& lap, int) -> AnyControl { return &lap.KuldesJel; }},
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

/// Whether the Lap has a control of this name.
constexpr bool isNamed(std::string_view name) {
  return std::ranges::find(named, name, &NamedControl::name) != std::end(named);
}

constexpr bool onlyShows(Kind kind) {
  return kind == Kind::Label || kind == Kind::BoxedLabel || kind == Kind::Picture ||
         kind == Kind::Frame;
}

static_assert(std::ranges::all_of(windowControls(),
                                  [](const ControlDescription& entry) {
                                    return onlyShows(entry.kind) || isNamed(entry.name);
                                  }),
              "what can be operated, or shows a value, has a control");
static_assert(std::ranges::all_of(windowControls(),
                                  [](const ControlDescription& entry) {
                                    return entry.buddy.empty() || findControl(entry.buddy) >= 0;
                                  }),
              "a buddy is a control");
static_assert(std::ranges::all_of(named,
                                  [](const NamedControl& control) {
                                    const auto has = [&](const auto& table) {
                                      return std::ranges::any_of(table, [&](const auto& entry) {
                                        return entry.name == control.name;
                                      });
                                    };
                                    return has(windowControls()) || has(menuTree());
                                  }),
              "a control stands on the window or in its menus");

}  // namespace

AnyControl controlOf(Lap& lap, std::string_view name, int index) {
  const auto* const found = std::ranges::find(named, name, &NamedControl::name);
  return found == std::end(named) ? AnyControl{} : found->in(lap, index);
}

std::string spokenName(const ControlDescription& control, int index) {
  constexpr std::string_view axes = "XYZ";
  std::string name(control.spoken.empty() ? control.caption : control.spoken);
  const std::size_t axis = name.find('%');
  if (control.elements.count > 1 && axis != std::string::npos) {
    name[axis] = axes[static_cast<std::size_t>(index - control.elements.first)];
  }
  return name;
}

std::string_view spokenStatus(controls::Status kind) {
  using controls::Status;
  if (kind == Status::Plain) return {};
  return kind == Status::Done ? "Kész: " : kind == Status::Warning ? "Figyelem: " : "Hiba: ";
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
