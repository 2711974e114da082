#include "apps/ctl/state.h"

#include <iomanip>
#include <iostream>

#include "apps/ctl/json.h"
#include "apps/ctl/terminal.h"
#include "timing/numbers.h"

namespace monitra::ctl {

namespace {

Json faces(int value, const std::string& text) {
  return {{"value", value}, {"text", text}};
}

Json axes(const timing::SetupPanel::Labels& labels) {
  Json captions = Json::array();
  for (int axis = 0; axis < 3; ++axis) captions.push_back(labels[axis].Caption.get());
  return captions;
}

/// The state under the names that the program uses, in the order of the printed form.
Json stateOf(const Session& session) {
  const shell::Lap& lap = session.lap;
  const timing::SetupPanel& setup = lap.setup;
  Json state;
  state["title"] = lap.form.Caption.get();
  state["edition"] = setup.MBKTarso.Checked ? "Tarso" : "Vilor";
  state["Alapido"] = lap.kozos.Alapido;
  state["Modositott"] = lap.kozos.Modositott;
  for (int i = 0; i < timing::timingFields; ++i) {
    state[std::string(timing::timingFieldNames[static_cast<std::size_t>(i)])] =
        faces(setup.FolLe[i].Value, setup.box(i).Text);
  }
  state["Funkcio"] = faces(setup.Funkcio.ListIndex, setup.Funkcio.text());
  state["Ut"] = faces(setup.Utfolle.Value, setup.Ut.Text);
  state["Tures"] = faces(setup.Turesfolle.Value, setup.Tures.Text);
  state["Spm"] = setup.Spm.Text.get();
  state["Xegesz"] = setup.Xegesz.Checked.get();
  state["Yegesz"] = setup.Yegesz.Checked.get();
  state["Zegesz"] = setup.Zegesz.Checked.get();
  state["VerFo"] = lap.kozos.VerFo;
  state["VerAl"] = lap.kozos.VerAl;
  state["VerRev"] = lap.kozos.VerRev;
  state["Verz"] = setup.Verz.Caption.get();
  state["Xttarto"] = setup.Xttarto.Caption.get();
  state["Yttarto"] = setup.Yttarto.Caption.get();
  state["Zttarto"] = setup.Zttarto.Caption.get();
  state["Csucsf"] = axes(setup.Csucsf);
  state["Nhatar"] = axes(setup.Nhatar);
  state["Cim"] = setup.Cim.Caption.get();
  state["lepes"] = setup.lepes.Caption.get();
  state["Uthossz"] = setup.Uthossz.Caption.get();
  return state;
}

/// The rates of the axes in millimetres.
void addSpeeds(Json& state, const shell::Lap& lap) {
  const double mmPerStep = timing::Ertek(lap.setup.Spm.Text.get());
  const auto add = [&](const char* name, const auto& rates, double seconds) {
    Json& speeds = state[name] = Json::array();
    for (int k = 1; k <= 3; ++k) speeds.push_back(rates[k] * mmPerStep * seconds);
  };
  constexpr double minute = 60;
  add("Csucs_mm_s", lap.kozos.Csucs, 1);
  add("Csucs_mm_min", lap.kozos.Csucs, minute);
  add("Korlat_mm_s", lap.kozos.Korlat, 1);
  add("Korlat_mm_min", lap.kozos.Korlat, minute);
}

std::string plain(const Json& value) {
  if (value.is_number_float()) return timing::decimalText(value.get<double>());
  if (value.is_boolean()) return value.get<bool>() ? "igen" : "nem";
  return value.is_string() ? printable(value.get<std::string>()) : value.dump();
}

void print(const Json& state) {
  constexpr int nameWidth = 11;
  for (const auto& [name, value] : state.items()) {
    if (name == "boxes") continue;
    std::cout << std::left << std::setw(nameWidth) << name << ' ';
    if (value.is_object()) {
      std::cout << std::right << std::setw(5) << plain(value["value"]) << "  \""
                << plain(value["text"]) << "\"\n";
    } else if (value.is_array()) {
      std::cout << "X: " << plain(value[0]) << ", Y: " << plain(value[1])
                << ", Z: " << plain(value[2]) << '\n';
    } else {
      std::cout << plain(value) << '\n';
    }
  }
  for (const auto& box : state["boxes"]) {
    std::cout << "\nÜzenet (" << box["style"] << "):\n" << boxLines(box["text"]) << '\n';
  }
}

}  // namespace

void printState(const Session& session, bool json, const std::vector<ExtraEntry>& extra,
                bool inMillimetres) {
  Json state = stateOf(session);
  if (inMillimetres) addSpeeds(state, session.lap);
  for (const auto& [name, value] : extra) state[name] = value;
  state["boxes"] = Json::array();
  for (const ShownBox& box : session.boxes.shown) {
    state["boxes"].push_back({{"text", box.text}, {"style", box.style}});
  }
  if (!json) {
    print(state);
    return;
  }
  for (const ShownBox& box : session.boxes.shown) std::cerr << boxLines(box.text) << '\n';
  writeJson(state);
}

}  // namespace monitra::ctl
