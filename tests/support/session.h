#pragma once

#include "shell/port_texts.h"
#include "shell/window_controls.h"
#include "support/image.h"
#include "support/program.h"
#include "support/rows.h"

namespace monitra::support {

/// The started program, which plays tables of what a user does and what else happens. A row has the
/// action, two words for it, and then all that comes of it: what went into the journal, and every
/// value of the window that is another than ahead of it.
struct Session : testing::Test, Program {
  using Values = std::map<std::string, std::string>;
  using Action = std::function<void(const std::string& name, const std::string& what)>;

  Session() {
    lap.Form_Load();
    journal.clear();
    watched = lap.revisions.marks.observe([this] { marks = shownMarks(); });
    lap.uploaded.handle([this] { journal.emplace_back("uploaded"); });
    dialog.whileOpen = [this] { EXPECT_EQ(status(), "") << "a clean line first"; };
    box.whileOpen = [this] {
      const std::string& holding = lap.setup.Xttarto.Caption;
      if (holding != values["holding"]) journal.push_back("already " + holding);
    };
    marks = shownMarks();
    values = shown();
  }

  void play(const std::string& table) {
    values = shown();
    for (const Row& row : rows(table)) {
      journal.clear();
      actions.at(row.at(0))(row.at(1), row.at(2));
      Journal seen = decoded(journal);
      for (const auto& [name, value] : std::exchange(values, shown())) {
        if (values[name] != value) seen.push_back(name + ": " + values[name]);
      }
      for (std::string& entry : seen) {
        std::ranges::replace(entry, '|', ' ');
        const std::size_t folder = entry.find(scratch.path());
        if (folder != entry.npos) entry.replace(folder, scratch.path().size(), "");
      }
      EXPECT_TRUE(same(seen, Journal(row.begin() + 3, row.end()))) << row[0] << " " << row[1];
    }
  }

  std::string status() const {
    return std::string(shell::spokenStatus(lap.Esemeny.kind())) + lap.Esemeny.Caption.get();
  }
  std::string shownMarks() const {
    return lap.revisions.marks.savedMark() + " " + lap.revisions.marks.sentMark();
  }
  /// Of fields the number, and the text where it isn't that.
  Values shown() const {
    const timing::SetupPanel& setup = lap.setup;
    Values all{{"status", status()},
               {"marks", marks},
               {"lamps", ""},
               {"window", lap.form.Caption},
               {"port", lap.PortAllapot.Caption},
               {"firmware", lap.kozos.FirmwareNev + ", " + lap.kozos.FirmwareCel},
               {"version", lap.kozos.VerFo + "." + lap.kozos.VerAl + "." + lap.kozos.VerRev},
               {"shown version", setup.Verz.Caption},
               {"limit switches", setup.Vegallas.Caption},
               {"holding", setup.Xttarto.Caption},
               {"edition", setup.Cim.Caption},
               {"Spm", setup.Spm.Text},
               {"length", setup.Uthossz.Caption},
               {"mode", std::to_string(setup.Funkcio.ListIndex)},
               {"constant", setup.MBTallando.Checked ? "yes" : "no"},
               {"modified", lap.kozos.Modositott == 0 ? "no" : "yes"},
               {"Ut", field(setup.Ut, setup.Utfolle)},
               {"Tures", field(setup.Tures, setup.Turesfolle)}};
    for (const auto* steps : {&setup.Xegesz, &setup.Yegesz, &setup.Zegesz}) {
      all["whole steps"] += steps->Checked ? '1' : '0';
    }
    for (int i = 0; i < timing::timingFields; ++i) {
      all[std::string(timing::timingFieldNames[i])] = field(setup.box(i), setup.FolLe[i]);
    }
    if (lap.MotorAram.On) all["lamps"] += "windings ";
    if (lap.Maromotor.On) all["lamps"] += "spindle ";
    if (lap.OrajelMagas.On) all["lamps"] += "clock ";
    EXPECT_EQ(marks, shownMarks()) << "told at each change";
    return all;
  }
  static std::string field(const controls::TextBox& box, const controls::SpinButton& spin) {
    const std::string number = std::to_string(spin.Value);
    return number == box.Text.get() ? number : number + " \"" + box.Text.get() + "\"";
  }

  /// A file's lines, some by their names, that are parted by '/'.
  std::string bytesOf(const std::string& text) const {
    std::istringstream lines(text);
    std::string bytes;
    for (std::string line; std::getline(lines, line, '/');) {
      bytes += (named.contains(line) ? named.at(line) : line) + "\r\n";
    }
    return bytes;
  }
  /// For the next dialog; without a text the file is as it was.
  void choose(const std::string& name, const std::string& text) {
    dialog.path.reset();
    if (name != "cancel") dialog.path = std::filesystem::path(scratch.path() + "/") / name;
    if (!text.empty()) scratch.write(name, bytesOf(text));
  }

  controls::SpinButton& spin(const std::string& name) {
    if (name == "Ut") return lap.setup.Utfolle;
    return name == "Tures" ? lap.setup.Turesfolle : lap.setup.FolLe[std::stoi(name)];
  }

  std::string marks;
  controls::Observation watched;
  Values values;
  const Block block;
  Values named{{"first", block.line4200},
               {"second", block.line4210},
               {"third", block.line4220},
               {"end", closingRecord}};
  std::map<std::string, Action> actions{
      {"file", [this](auto& name, auto& text) { choose(name, text); }},
      {"show", [this](auto& name, auto&) { journal.push_back(scratch.read(name)); }},
      {"open", [this](auto& name, auto& text) { choose(name, text), lap.MFSetNyit.click(); }},
      {"save", [this](auto& name, auto& text) { choose(name, text), lap.MFSetMent.click(); }},
      {"read", [this](auto& name, auto& text) { choose(name, text), lap.openFirmware(); }},
      {"patch", [this](auto& name, auto& text) { choose(name, text), lap.saveFirmware(); }},
      {"drop",
       [this](auto& name, auto& text) {
         choose(name, text);
         lap.openDropped(std::exchange(dialog.path, std::nullopt).value());
       }},
      {"fail",
       [this](auto& call, auto& how) {
         std::istringstream numbers(how);
         int failure = 0, behind = 0;
         numbers >> failure >> behind;
         files.fail(FaultyFiles::Call{std::stoi(call)}, platform::Failure{failure}, behind);
       }},
      {"mend", [this](auto&, auto&) { files.mend(); }},
      {"answer No", [this](auto&, auto&) { box.answers = {platform::BoxAnswer::No}; }},
      {"up", [this](auto& name, auto&) { spin(name).pressUp(); }},
      {"down", [this](auto& name, auto&) { spin(name).pressDown(); }},
      {"set", [this](auto& i, auto& to) { lap.setup.FolLe[std::stoi(i)].Value = std::stoi(to); }},
      {"mode", [this](auto& i, auto&) { lap.setup.Funkcio.select(std::stoi(i)); }},
      {"type", [this](auto& name, auto& text) { boxes.at(name)->type(text); }},
      {"edition", [this](auto& one, auto&) {
         (one == "Tarso" ? lap.setup.MBKTarso : lap.setup.MBKVilor).click();
       }}};
  std::map<std::string, controls::TextBox*> boxes{{"Ut", &lap.setup.Ut},
                                                  {"Spm", &lap.setup.Spm},
                                                  {"Tures", &lap.setup.Tures},
                                                  {"Seb", &lap.jog.Seb}};
};

}  // namespace monitra::support
