#include "shell/port_texts.h"
#include "shell/window_description.h"
#include "support/image.h"
#include "support/program.h"
#include "support/rows.h"

namespace monitra::shell {
namespace {

using namespace support;
using platform::BoxAnswer;
using platform::Failure;
using Call = FaultyFiles::Call;

const std::string question =
    "box 36: Nem mentette a beállításokat!\r\nBefejezés előtt akarja ezeket menteni?";
const std::string open = "open Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* Modositott.pwm";
const std::string save = "save" + open.substr(4);
const std::string unsaved = "Mentés óta módosult", unsent = "Feltöltés óta módosult";
const std::string both = unsaved + "|" + unsent;

struct Shell : testing::Test, Program {
  Shell() {
    lap.Form_Load();
    journal.clear();
  }

  void openSetup(const std::string& bytes) {
    dialog.path = scratch.write("a.pwm", bytes);
    lap.MFSetNyit.click();
  }
  void saveSetup(const std::string& name) {
    dialog.path = scratch.path(name);
    lap.MFSetMent.click();
  }
  void openImage(const std::string& bytes) {
    dialog.path = scratch.write("fw.hex", bytes);
    lap.openFirmware();
  }
  /// With what tells its kind.
  std::string line() const {
    return std::string(spokenStatus(lap.Esemeny.Kind)) + lap.Esemeny.Caption.get();
  }
  std::string marks() const { return lap.marks.savedMark() + "|" + lap.marks.sentMark(); }
};

struct ShellAtItsStart : testing::Test, Program {};

TEST_F(ShellAtItsStart, RunsInItsOrderAndEndsInTheSecondEdition) {
  registers.values[0x378] = 0xFF;
  for (auto* text : {&lap.port.PCBV.Caption, &lap.setup.Cim.Caption, &lap.setup.Xttarto.Caption,
                     &lap.form.Caption, &lap.port.Bitcim[8].Caption, &lap.InfoT.Text})
    journalise(journal, *text);
  lap.Form_Load();
  EXPECT_TRUE(same(journal, rows("start")[0]));
  EXPECT_EQ(lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev + lap.setup.Verz.Caption.get() +
                lap.setup.Uthossz.Caption.get(),
            "503V?.?.?12.5");
  journal.clear();
  registers.values[0x378] = 0xA1;
  for (const int tab : {1, 3, 0, 2}) lap.SSTab1.Tab = tab;
  lap.Nev.click();
  EXPECT_TRUE(same(journal, rows("idle and about")[0])) << "only on the tab PC-Link";
}

TEST_F(ShellAtItsStart, StoredPreferencesComeBackAndAreWrittenInTheirOwnForm) {
  settings.values = {{"LPT", "1"}, {"Seb", "gyors"}, {"Inv0", "0"}, {"Inv2", "2"}, {"PCB", "41"}};
  lap.Form_Load();
  EXPECT_EQ(lap.port.LPT.text() + lap.jog.Seb.Text.get() + lap.port.PCBV.Caption.get(),
            "&H278gyorsPCB V3.2");
  EXPECT_EQ(registers.values.count(0x378), 0U) << "the first access goes to the stored port";
  lap.port.Mpcb40.click();
  EXPECT_EQ(settings.values["PCB"], "40") << "at once";
  lap.port.Mpcb32.click();
  lap.Form_Unload();
  std::string stored;
  for (const auto& [key, value] : settings.values) stored += key + "=" + value + ";";
  EXPECT_EQ(stored, "Inv0=0;Inv1=0;Inv2=1;LPT= 1;PCB=32;Seb=gyors;");
  for (const char* const told : {"", "A tárolt beállítások nem nev", "A tárolt beállítások sér"}) {
    settings.damaged = std::string(told).ends_with("sér");
    Lap next(outside);
    next.Form_Load();
    EXPECT_EQ(next.Esemeny.Caption.get().substr(0, std::string(told).size()), told);
    EXPECT_EQ(next.Esemeny.Caption.get().empty(), *told == '\0');
    settings.values.erase("PCB");
  }
}

TEST_F(ShellAtItsStart, InfoTextIsShownIfItsNameIsExact) {
  for (const auto& [name, bytes, shown] :
       {std::array{"INFO.TXT", "x", "hiányzik"},
        std::array{"Info.txt", "T\xFBr\xF5\nutols\xF3", "Tűrő\r\nutolsó\r\n"},
        std::array{"Info.txt", "", ""}}) {
    scratch.write(name, bytes);
    Lap fresh(outside);
    fresh.Form_Load();
    EXPECT_EQ(fresh.InfoT.Text.get(), shown);
  }
}

TEST_F(ShellAtItsStart, ShutdownAsksAboutUnsavedChangesAndEndsOnceInAnyCase) {
  for (Journal expected : {Journal(), {question}, {question, save}}) {
    Lap fresh(outside);
    fresh.Form_Load();
    fresh.setup.Ut.type("5");
    if (!expected.empty()) fresh.setup.FolLe[0].pressUp();
    box.answers = {expected.size() > 1 ? BoxAnswer::Yes : BoxAnswer::No};
    journal.clear();
    fresh.MFkilepes.click();
    fresh.endWithoutQuestion();
    std::ranges::copy(rows("shutdown")[0], std::back_inserter(expected));
    EXPECT_TRUE(same(decoded(journal), expected));
  }
}

TEST_F(Shell, ASignalEndsWithoutAQuestionAlsoInsideOne) {
  lap.setup.FolLe[0].pressUp();
  lap.jog.Impulzus.click();
  auto& button = lap.jog.Mozg[lap.jog.Mozg.first];
  button.press();
  box.whileOpen = [&] {
    EXPECT_FALSE(button.Held) << "nothing moves below a question";
    button.press();
    lap.endWithoutQuestion();
    EXPECT_FALSE(button.Held) << "and nothing behind the end";
  };
  lap.Form_Unload();
  // In the program the end comes before the question returns.
  EXPECT_EQ(journal.front() + "; " + journal.end()[-2] + "; " + journal.back(),
            question + "; end; " + save);
}

TEST_F(Shell, StatusLineTellsWhatNoBoxDoesAndWhyItBeeps) {
  const std::string block = Block().text(), closed = block + closingRecord;
  const std::string low =
      wordRecord(0x4200, {0, 0, 1, 2, 3, 4, 5, 6}) + closed.substr(closed.find('\n'));
  const auto load = [&](int presses) {
    while (presses-- > 0) lap.load.TapFel.click();
  };
  const std::function<void()> operations[] = {
      [&] { openSetup("300\r\n0\r\n"); },
      [&] { saveSetup("uj.pwm"); },
      [&] { lap.MFSetNyit.click(); },
      [&] { openImage(closed); },
      [&] { openImage(low); },
      [&] { openImage(block); },
      [&] { openImage("x\n" + block); },
      [&] { openImage("x\n" + closed); },
      [&] { dialog.path = scratch.path("uj.hex"), lap.saveFirmware(); },
      [&] { box.answers = {BoxAnswer::No}, lap.setup.Letolt.click(); },
      [&] { dialog.path.reset(), lap.openFirmware(); },
      [&] { files.fail(Call::Read, Failure::DeviceIo), openImage(block); },
      [&] { files.fail(Call::Open, Failure::PathFileAccess), lap.openFirmware(); },
      [&] { lap.jog.Seb.type("300"), lap.jog.Impulzus.click(); },
      [&] { lap.jog.Impulzus.click(); },
      [&] { lap.jog.Seb.type("2000"), lap.jog.Impulzus.click(); },
      [&] { load(7); },
      [&] { lap.load.TulH.click(), load(4); },
      [&] { lap.load.TapStop.click(); },
      [&] { lap.setup.FolLe[6].Value = 1, lap.setup.FolLe[6].pressDown(); }};
  dialog.whileOpen = [this] { EXPECT_EQ(line(), "") << "a clean line first"; };
  const auto told = rows("status");
  for (std::size_t n = 0; n < std::size(operations); ++n) {
    operations[n]();
    const bool named = told[n].size() > 1 && !told[n][1].empty();
    EXPECT_EQ(line(), told[n][0] + (named ? scratch.path(told[n][1]) : "")) << n;
  }
  EXPECT_EQ(std::ranges::count(journal, "beep"), 3);
}

TEST_F(Shell, AnUploadTellsItsTimeAndItsLongestPauseOrThatNotAllWentOut) {
  int told = 0;
  lap.uploaded.handle([&told] { ++told; });
  const auto upload = [this](long writes, int late) {
    registers.writesThatReach = writes;
    registers.late = std::chrono::microseconds(late);
    registers.time += std::chrono::hours(3);
    lap.setup.Letolt.click();
    return line();
  };
  EXPECT_EQ(upload(479, 0),
            "Hiba: A port feltöltés közben eltűnt, a Setup nem ment ki egészen. Töltse fel újra!");
  EXPECT_EQ(upload(0, 0),
            "Hiba: Nem ment ki semmi, mert nincs használható port. A port sora megmondja, miért.");
  EXPECT_EQ(marks(), "|Még nincs feltöltve");
  // One write puts the line to idle behind what was cut short. Between two edges are up to two
  // waits: the data line keeps its level for equal bits.
  EXPECT_EQ(upload(481, 330),
            "Kész: Kiküldve 638.4 ms alatt, két él közt legfeljebb 2.7 ms szünettel. "
            "A vonal egyirányú, nyugta nem jön.");
  EXPECT_EQ(marks(), "|");
  EXPECT_NE(upload(-1, 33).find(" 2.1 ms"), std::string::npos) << line();
  ports.now.kind = platform::PortState::Kind::Lost;
  EXPECT_EQ(upload(-1, 0).substr(0, 13), "Hiba: A port ") << "found out behind the last write";
  EXPECT_EQ(told, 5);
}

TEST(PortTexts, NameThePortInUseOrTellWhyNothingGoesOutAndTheRemedy) {
  using platform::PortState;
  for (const Row& row : rows("ports")) {
    const PortState state{.kind = static_cast<PortState::Kind>(std::stoi(row[0])),
                          .address = std::stoi(row[1], nullptr, 16),
                          .node = row[2],
                          .holder = row[3],
                          .holderIsDriver = row[4] == "driver",
                          .group = "lp",
                          .shared = row[4] == "shared",
                          .error = 5};
    const auto [text, advice, command, canRetry] = portRemedy(state, "&H378");
    const std::string status = std::string(spokenStatus(portStatus(state))) + text,
                      begin = status.substr(0, row[5].size()),
                      word = advice.substr(0, advice.find(' '));
    EXPECT_EQ((Row{begin, command, word}), Row(row.begin() + 5, row.end()));
    EXPECT_NE(canRetry, state.inUse()) << text;
  }
}

TEST_F(Shell, ThePortsLineFollowsTheSelectionAndANewTryFromItsRemedy) {
  const auto& text = lap.PortAllapot.Caption;
  EXPECT_EQ(text.get(), "Port: /dev/parport0, cím 0x378, a kernel meghajtójával.");
  lap.port.LPT.select(1);
  EXPECT_EQ(text.get(), "Port: /dev/parport0, cím 0x278, a kernel meghajtójával.");
  const std::string found = "remedy " + text.get() + ": ";
  lap.PortTeendo.click();
  ports.now.kind = platform::PortState::Kind::NoDriver;
  ports.changed();
  const std::string shown = "remedy " + text.get() + ": sudo modprobe -a parport_pc ppdev";
  lap.PortTeendo.click();
  remedies.retries = 5;
  lap.PortTeendo.click();
  EXPECT_EQ("remedy " + text.get() + ": ", found);
  EXPECT_TRUE(same(journal, {found, shown, shown, "open 278", found}));
}

TEST_F(Shell, TwoMarksTellHowTheSetupStandsToItsFileAndToTheController) {
  saveSetup("b.pwm");
  const std::string file = scratch.read("b.pwm");
  std::string told;
  lap.marks.observe([&] { told = marks(); });
  // What each change does to the marks of a Setup that is in the file and has gone out.
  const std::pair<std::function<void()>, std::string> changes[] = {
      {[&] { lap.setup.FolLe[11].pressUp(); }, both},
      {[&] { lap.setup.Funkcio.select(3); }, both},
      {[&] { lap.setup.FolLe[0].pressUp(), saveSetup("c.pwm"); }, "|" + unsent},
      {[&] { lap.setup.Spm.type("0.01"); }, "|"},
      {[&] { lap.setup.Ut.type("1000.5"); }, unsaved + "|"},
      {[&] { lap.setup.Tures.type("2"); }, both},
      {[&] { lap.setup.Verz.Caption = "V5.0.3"; }, unsaved + "|"},
      {[&] { lap.setup.Xegesz.click(), dialog.path.reset(), lap.MFSetMent.click(); }, both},
      {[&] { files.fail(Call::Write, Failure::DiskFull), saveSetup("c.pwm"); }, "Nincs elmentve|"},
      {[&] { dialog.path = scratch.path("nincs.pwm"), lap.MFSetNyit.click(); }, "|"},
      {[&] { openSetup("300\r\n" + file.substr(file.find('\n') + 1)); }, both},
      {[&] { openSetup("91\r\n"); }, unsaved + "|"}};
  for (std::size_t row = 0; row < std::size(changes); ++row) {
    files.mend();
    openSetup(file);
    lap.setup.Letolt.click();
    EXPECT_EQ(told, "|") << "ahead of row " << row;
    changes[row].first();
    EXPECT_EQ(marks(), changes[row].second) << "row " << row;
    EXPECT_EQ(told, marks()) << "row " << row;
  }
}

TEST_F(Shell, ADroppedFileAnswersTheDialogOnce) {
  lap.openDropped(scratch.write("fw.Hex", Block().text() + closingRecord));
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0   (fw.Hex)");
  lap.openDropped(scratch.write("a.PWM", "300\r\n"));
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0  (a.PWM)");
  for (const char* other : {"a.txt", "pwm", ".hexa", "/mappa.hex/fw", ""}) lap.openDropped(other);
  EXPECT_EQ(line().find("Figyelem: A fájl hiányos: 1 sor"), 0U);
  EXPECT_TRUE(same(journal, {}));
  lap.MFSetNyit.click();
  EXPECT_TRUE(same(journal, {open})) << "later dialogs come up again";
  journal.clear();
  box.whileOpen = [this] { lap.MFSetMent.click(); };
  lap.openDropped(scratch.path("nincs.hex"));
  EXPECT_TRUE(same(journal, {"box 16: 'nincs.hex' nem található !", save}));
  EXPECT_EQ(line(), "");
}

}  // namespace
}  // namespace monitra::shell
