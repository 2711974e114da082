#include <gtest/gtest.h>

#include "shell/port_texts.h"
#include "support/image.h"
#include "support/program.h"

namespace monitra::shell {
namespace {

using platform::BoxAnswer;
using support::Journal;

const std::string question =
    "box 36: Nem mentette a beállításokat!\r\nBefejezés előtt akarja ezeket menteni?";
const std::string save = "save Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* Modositott.pwm";

struct Shell : testing::Test, support::Program {
  /// What a shutdown does, from this state of the data register and after these lines.
  static Journal shutdown(std::uint8_t state, Journal expected = {}) {
    support::expectBytes(expected, "378", state, 5, 7, {99, 0, 16, 110, 0, 16, 120, 0, 16});
    for (const char* entry : {"LPT= 0", "Seb=100", "Inv0=0", "Inv1=0", "Inv2=0"}) {
      expected.push_back(std::string("set Monitra Setup/Setup.") + entry);
    }
    expected.emplace_back("end");
    return expected;
  }
};

TEST_F(Shell, StartUpRunsInItsOrderAndEndsInTheSecondEdition) {
  registers.values[0x378] = 0xFF;
  const auto note = [this](controls::Property<std::string>& text) {
    text.observe([this, &text] { journal.push_back(text); });
  };
  for (auto* label : {&lap.port.PCBV, &lap.setup.Cim, &lap.setup.Xttarto}) note(label->Caption);
  for (auto* text : {&lap.form.Caption, &lap.port.Bitcim[8].Caption, &lap.InfoT.Text}) note(*text);
  lap.Form_Load();
  EXPECT_EQ(journal, (Journal{"get Setup.LPT", "get Setup.Seb", "get Setup.Inv0", "get Setup.Inv1",
                              "get Setup.Inv2", "208.333 Hz (50%)", "Vilor CNC Monitra V2.2.0",
                              "get Setup.PCB", "PCB V4.x", " 1. Bit  Spindle", "hiányzik", "r378",
                              "w378=5F", "Gerjesztés: Natív PWM (30.30 kHz)", "631.313 Hz (50%)"}));
  EXPECT_EQ(lap.kozos.Modositott, 0);
  EXPECT_EQ(lap.kozos.Alapido, 3.3e-05);
  EXPECT_EQ(lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev, "503");
  EXPECT_TRUE(lap.setup.Letolt.Enabled);
  EXPECT_EQ(lap.setup.Verz.Caption.get() + lap.setup.Uthossz.Caption.get(), "V?.?.?12.5");
}

TEST_F(Shell, StoredPreferencesComeBackAndAreWrittenInTheirOwnForm) {
  settings.values = {{"LPT", "1"}, {"Seb", "gyors"}, {"Inv0", "2"}, {"Inv2", "0"}, {"PCB", "41"}};
  lap.Form_Load();
  EXPECT_EQ(lap.port.LPT.text() + lap.jog.Seb.Text.get() + lap.port.PCBV.Caption.get(),
            "&H278gyorsPCB V3.2");
  EXPECT_EQ(registers.values.count(0x378), 0U) << "the first access goes to the stored port";
  lap.Form_Unload();
  EXPECT_EQ(settings.values, (std::map<std::string, std::string>{{"LPT", " 1"},
                                                                 {"Seb", "gyors"},
                                                                 {"Inv0", "1"},
                                                                 {"Inv1", "0"},
                                                                 {"Inv2", "0"},
                                                                 {"PCB", "41"}}));
}

TEST_F(Shell, InfoTextIsShownIfItsNameIsExact) {
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

TEST_F(Shell, ShutdownSwitchesOffStoresAndEndsOnce) {
  lap.Form_Load();
  lap.setup.Ut.type("5");
  journal.clear();
  lap.MFkilepes.click();
  EXPECT_EQ(journal, shutdown(0)) << "no timing field has changed, so nothing is asked";
  journal.clear();
  lap.Form_Unload();
  EXPECT_EQ(journal, Journal{});
}

TEST_F(Shell, ShutdownAsksAboutUnsavedChangesAndCannotBeRefused) {
  const auto runs = [this](BoxAnswer answer, const Journal& asked) {
    Lap fresh(outside);
    fresh.Form_Load();
    fresh.setup.FolLe[0].pressUp();
    box.answers = {answer};
    journal.clear();
    fresh.Form_Unload();
    EXPECT_EQ(journal, shutdown(0, asked));
  };
  runs(BoxAnswer::No, {question});
  runs(BoxAnswer::Yes, {question, save});
  dialog.path = scratch.path("vegul.pwm");
  runs(BoxAnswer::Yes, {question, save});
  EXPECT_EQ(scratch.read("vegul.pwm").substr(0, 8), "92\r\n91\r\n");
}

TEST_F(Shell, ASignalEndsWithoutAQuestionAlsoInsideOne) {
  lap.Form_Load();
  lap.setup.FolLe[0].pressUp();
  journal.clear();
  box.whileOpen = [this] { lap.endWithoutQuestion(); };
  lap.Form_Unload();
  Journal expected = shutdown(0, {question});
  expected.push_back(save);
  EXPECT_EQ(journal, expected) << "in the program the end comes before the question returns";
}

TEST_F(Shell, OnlyTheTabPcLinkPutsTheLinesToIdle) {
  lap.Form_Load();
  registers.values[0x378] = 0xA1;
  journal.clear();
  for (const int tab : {1, 3, 0, 1}) lap.SSTab1.Tab = tab;
  EXPECT_EQ(journal, Journal{});
  lap.SSTab1.Tab = 2;
  EXPECT_EQ(journal, (Journal{"r378", "w378=1"}));
}

TEST_F(Shell, StatusLineTellsWhatNoBoxDoes) {
  lap.Form_Load();
  dialog.path = scratch.write("rovid.pwm", "300\r\n0\r\n");
  lap.MFSetNyit.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "A fájl hiányos: 2 sor van benne a 22 helyett. 2 értéke a tartományán kívül esett, a "
            "legközelebbi határt kapta. Ellenőrizze a mezőket!");
  dialog.path = scratch.path("uj.pwm");
  lap.MFSetMent.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(), "Mentve: " + scratch.path("uj.pwm"));
  lap.MFSetNyit.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(), "");
  lap.Esemeny.Caption = "régi";
  box.answers = {BoxAnswer::No};
  lap.setup.Letolt.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(), "") << "an upload begins with a clean line";
}

TEST_F(Shell, AnUploadTellsItsTimeAndItsLongestPauseAndWhereNothingWentOut) {
  lap.Form_Load();
  // Between two edges are up to two waits: the data line keeps its level for equal bits.
  for (const auto& [late, figures] :
       {std::pair(330, std::array{"638.4", "2.7"}), std::pair(33, std::array{"495.8", "2.1"})}) {
    registers.late = std::chrono::microseconds(late);
    registers.time += std::chrono::hours(3);
    lap.setup.Letolt.click();
    EXPECT_EQ(lap.Esemeny.Caption.get(), std::string("Kiküldve ") + figures[0] +
                                             " ms alatt, a leghosszabb szünet két él között " +
                                             figures[1] +
                                             " ms volt. A vonal egyirányú, nyugta nem jön.");
  }
  EXPECT_EQ(ports.messages, 2) << "each of them as a whole";
  EXPECT_FALSE(ports.inMessage);
  lap.endWithoutQuestion();
  EXPECT_EQ(ports.messages, 5);
  registers.writesThatReach = 479;
  lap.setup.Letolt.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "A port feltöltés közben eltűnt, a Setup nem ment ki egészen. Töltse fel újra!");
  EXPECT_EQ(lap.marks.sentMark(), "");
  lap.setup.Letolt.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "Nem ment ki semmi, mert nincs használható port. A port sora megmondja, miért.");
  registers.writesThatReach = -1;
  ports.now.kind = platform::PortState::Kind::Lost;
  lap.setup.Letolt.click();
  EXPECT_EQ(lap.Esemeny.Caption.get().substr(0, 7), "A port ") << "found out behind the last write";
}

TEST_F(Shell, ThePortsLineTellsEveryStateAndItsRemedy) {
  using Kind = platform::PortState::Kind;
  const platform::PortState own{.address = 0x378, .node = "/dev/parport0"};
  const platform::PortState card{.address = 0xD010, .node = "/dev/parport1"};
  const platform::PortState bare{.address = 0x378};
  const struct {
    Kind kind;
    platform::PortState port;
    const char *text, *command;
  } states[] = {
      {Kind::Kernel, own, "Port: /dev/parport0, cím 0x378, a kernel meghajtójával.", ""},
      {Kind::Kernel, card,
       "Port: /dev/parport1, cím 0xD010, a kernel meghajtójával, az &H378 helyén.", ""},
      {Kind::Raw, bare, "Port: közvetlen regiszterek, cím 0x378.", ""},
      {Kind::Raw,
       {.address = 0xD010},
       "Port: közvetlen regiszterek, cím 0xD010, az &H378 helyén.",
       ""},
      {Kind::Untried, card,
       "Port: /dev/parport1, cím 0xD010, az &H378 helyén; az első használatkor nyílik meg.", ""},
      {Kind::NoDriver,
       {},
       "a nyomtatóport meghajtója nincs betöltve. Töltse be!",
       "sudo modprobe -a parport_pc ppdev"},
      {Kind::NoNode, own, "a ppdev meghajtó nincs betöltve. Töltse be!", "sudo modprobe ppdev"},
      {Kind::NoPort,
       {},
       "ezen a gépen nincs nyomtatóport. Próbához a Monitra Szimulátor való.",
       ""},
      {Kind::NoneLeft, {}, "ehhez a címhez nincs port. Válasszon másikat a „Teszt” fülön!", ""},
      {Kind::NoPermission,
       {.address = 0x378, .node = "/dev/parport0", .group = "lp"},
       "a /dev/parport0 használatára nincs jog. Lépjen be a(z) lp csoportba!",
       "sudo usermod -aG lp $USER"},
      {Kind::NotYetMember,
       {.address = 0x378, .node = "/dev/parport0", .group = "lp"},
       "a(z) lp csoport joga a következő belépéstől él. Jelentkezzen ki, majd be!",
       ""},
      {Kind::Hidden, own, "a /dev/parport0 innen nem látszik. Adja át a konténernek!", ""},
      {Kind::NoRegisters,
       {},
       "a rendszer nem engedi a közvetlen regisztereket. Használja a meghajtót!",
       "sudo modprobe -a parport_pc ppdev"},
      {Kind::Printing, own, "a /dev/parport0 épp nyomtat. Várja meg, vagy állítsa le!",
       "sudo systemctl stop cups cups.socket cups.path; sudo modprobe -r lp"},
      {Kind::Lost, own, "a /dev/parport0 használat közben eltűnt. Töltse be a meghajtót!",
       "sudo modprobe -a parport_pc ppdev"},
      {Kind::Failed,
       {.address = 0x378, .node = "/dev/parport0", .error = 5},
       "a /dev/parport0 nem nyílik meg, a hiba kódja 5.",
       ""},
      {Kind::Busy, own, "a /dev/parport0 foglalt, használja: más program. Zárja be!", ""},
      {Kind::Busy,
       {.address = 0x378, .holder = "Monitra Setup (12)"},
       "a 0x378 című port foglalt, használja: Monitra Setup (12). Zárja be!",
       ""},
      {Kind::Busy,
       {.address = 0x378, .node = "/dev/parport0", .holder = "imm0", .holderIsDriver = true},
       "a /dev/parport0 foglalt, a(z) imm0 meghajtó használja. Vegye ki!",
       "sudo modprobe -r imm"},
      {Kind::Kernel,
       {.address = 0x378, .node = "/dev/parport0", .shared = true},
       "Port: /dev/parport0, cím 0x378, a kernel meghajtójával; közben ne nyomtasson.",
       "sudo modprobe -r lp"},
  };
  for (const auto& given : states) {
    platform::PortState state = given.port;
    state.kind = given.kind;
    const bool good = state.inUse() || state.kind == Kind::Untried;
    const platform::Remedy remedy = portRemedy(state, "&H378");
    EXPECT_EQ(remedy.text, (good ? "" : "Semmi sem megy ki: ") + std::string(given.text));
    EXPECT_EQ(remedy.command, given.command) << given.text;
    EXPECT_EQ(remedy.canRetry, !state.inUse()) << given.text;
    const bool loads = remedy.command.find("parport_pc") != std::string::npos;
    EXPECT_EQ(remedy.advice.find("Előbb vegye le a tápot a vezérlőről") == 0, loads) << given.text;
    EXPECT_EQ(remedy.advice.find("lefagyhat") != std::string::npos, state.shared) << given.text;
  }
}

TEST_F(Shell, ThePortsLineFollowsTheSelectionAndANewTryFromItsRemedy) {
  lap.Form_Load();
  EXPECT_EQ(lap.PortAllapot.Caption.get(),
            "Port: /dev/parport0, cím 0x378, a kernel meghajtójával.");
  lap.port.LPT.select(1);
  EXPECT_EQ(lap.PortAllapot.Caption.get(),
            "Port: /dev/parport0, cím 0x278, a kernel meghajtójával.");
  journal.clear();
  lap.PortTeendo.click();
  ports.now.kind = platform::PortState::Kind::NoDriver;
  ports.changed();
  const std::string text =
      "Semmi sem megy ki: a nyomtatóport meghajtója nincs betöltve. Töltse be!";
  const std::string shown = "remedy " + text + ": sudo modprobe -a parport_pc ppdev";
  EXPECT_EQ(lap.PortAllapot.Caption.get(), text);
  lap.PortTeendo.click();
  remedies.retries = 5;
  lap.PortTeendo.click();
  const std::string found = "remedy Port: /dev/parport0, cím 0x278, a kernel meghajtójával.: ";
  EXPECT_EQ(journal, (Journal{found, shown, shown, "open 278", found}));
}

TEST_F(Shell, TwoMarksTellThatTheSetupHasChangedSinceItWasSavedAndSent) {
  int views = 0;
  lap.Form_Load();
  lap.marks.observe([&views] { ++views; });
  const auto marks = [this] { return lap.marks.savedMark() + "|" + lap.marks.sentMark(); };
  const auto open = [this](const std::string& bytes) {
    dialog.path = scratch.write("a.pwm", bytes);
    lap.MFSetNyit.click();
  };
  const std::string unsaved = "Mentés óta módosult", unsent = "Feltöltés óta módosult";
  EXPECT_EQ(marks(), "|Még nincs feltöltve");
  registers.writesThatReach = 479;
  lap.setup.Letolt.click();
  EXPECT_EQ(marks(), "|Még nincs feltöltve") << "not all has gone out";
  registers.writesThatReach = -1;
  lap.setup.Letolt.click();
  EXPECT_EQ(marks(), "|");
  dialog.path = scratch.path("b.pwm");
  lap.MFSetMent.click();
  const std::string file = scratch.read("b.pwm");
  // Its function exists in the second edition only, so that opening it clears the list.
  std::string firstEdition = file;
  firstEdition.replace(file.find("\r\n 0\r\n"), 4, "\r\n 5");
  firstEdition.replace(file.find("?\r\n 5\r\n"), 5, "?\r\n 1");
  // What each change does to the marks; all but the path per step are part of both.
  const std::pair<std::function<void()>, std::string> changes[] = {
      {[this] { lap.setup.FolLe[11].pressUp(); }, unsaved + "|" + unsent},
      {[this] { lap.setup.FolLe[11].pressDown(); }, "|"},
      {[this] { lap.setup.Funkcio.select(3); }, unsaved + "|" + unsent},
      {[this] { lap.MFSetMent.click(); }, "|" + unsent},
      {[this] { lap.setup.Spm.type("0.01"); }, "|" + unsent},
      {[this] { lap.setup.Letolt.click(); }, "|"},
      {[this] { lap.setup.Ut.type("1000.5"); }, unsaved + "|"},
      {[this] { lap.setup.Tures.type("2"); }, unsaved + "|" + unsent},
      {[&] { open(file); }, "|" + unsent},
      {[this] { lap.setup.Xegesz.click(); }, unsaved + "|" + unsent},
      {[&] { dialog.path.reset(), lap.MFSetMent.click(); }, unsaved + "|" + unsent},
      {[&] { dialog.path = scratch.path("nincs.pwm"), lap.MFSetNyit.click(); },
       unsaved + "|" + unsent},
      {[&] { open(file); }, "|" + unsent},
      {[&] { open("300\r\n" + file.substr(file.find('\n') + 1)); }, unsaved + "|" + unsent},
      {[&] { open(file); }, "|" + unsent},
      {[&] { open("91\r\n"); }, unsaved + "|" + unsent},
      {[&] { open(file); }, "|" + unsent},
      {[&] { open(firstEdition); }, unsaved + "|Feltöltés óta módosult"},
      {[&] { open(file); }, "|" + unsent},
      {[&] { files.writesThatSucceed = 3, lap.MFSetMent.click(); }, "Nincs elmentve|" + unsent}};
  int n = 0;
  for (const auto& [change, expected] : changes) {
    change();
    EXPECT_EQ(marks(), expected) << "change " << n;
    ++n;
  }
  views = 0;
  lap.setup.Yegesz.click();
  EXPECT_EQ(views, 1);
}

TEST_F(Shell, TheAboutBoxShowsTheVersionAndChangesNothing) {
  lap.Form_Load();
  const std::string title = lap.form.Caption;
  journal.clear();
  lap.Nev.click();
  EXPECT_EQ(journal,
            Journal{"box 64: Tarso1 CNC Vezérlő, Monitra program, integrált bújtatott soros "
                    "adatátvitellel.\r\nVerzió:  2 . 2 . 0\r\n2026, a Monitra fejlesztői, "
                    "www.monitra.example\r\nA kapcsolási rajzért és a részletekért kérem látogassa "
                    "meg weblapomat."});
  EXPECT_EQ(lap.form.Caption.get(), title);
}

TEST_F(Shell, ADroppedFileAnswersTheDialogOnce) {
  lap.Form_Load();
  const support::Block block;
  const std::string setup = scratch.write("a.PWM", "300\r\n");
  const std::string image = scratch.write("fw.Hex", block.text() + support::closingRecord);
  const std::string bad = scratch.write("rossz.hex", block.text() + ":00\n");
  journal.clear();
  lap.openDropped(image);
  EXPECT_EQ(journal, Journal{});
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0   (fw.Hex)");
  EXPECT_EQ(lap.Esemeny.Caption.get(), "Beolvasva a V5.0.3 firmware paraméterblokkja.");
  EXPECT_EQ(lap.kozos.Modositott, 0);
  lap.openDropped(bad);
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "rossz.hex: nincs záró rekord (:00000001FF), a fájl csonka lehet (és még 1 hiba)");
  lap.openDropped(setup);
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0  (a.PWM)");
  EXPECT_EQ(lap.Esemeny.Caption.get().find("A fájl hiányos: 1 sor"), 0U);
  for (const char* other : {"/tmp/a.txt", "pwm", ".hexa", "/mappa.hex/fw", ""}) {
    lap.openDropped(other);
  }
  EXPECT_EQ(journal, Journal{});
  lap.MFSetNyit.click();
  EXPECT_EQ(journal, Journal{"open" + save.substr(4)}) << "later dialogs come up again";
  journal.clear();
  box.whileOpen = [this] { lap.MFSetMent.click(); };
  lap.openDropped(scratch.path("nincs.hex"));
  EXPECT_EQ(journal, (Journal{"box 16: 'nincs.hex' nem található !", save}));
  EXPECT_EQ(lap.Esemeny.Caption.get(), "");
}

TEST_F(Shell, BeepsLeaveTheProgramAndAMissingPermitIsPutIntoWords) {
  lap.Form_Load();
  lap.setup.FolLe[6].Value = 1;
  journal.clear();
  lap.setup.FolLe[6].pressDown();
  EXPECT_EQ(journal, Journal{"beep"});
  for (int n = 0; n < 7; ++n) lap.load.TapFel.click();
  EXPECT_EQ(journal.back(), "beep");
  EXPECT_EQ(lap.Esemeny.Caption.get().substr(0, 4), "100%");
  lap.load.TulH.click();
  for (int n = 0; n < 4; ++n) lap.load.TapFel.click();
  EXPECT_EQ(lap.Esemeny.Caption.get().substr(0, 4), "150%");
  lap.load.TapStop.click();
  EXPECT_EQ(lap.Esemeny.Caption.get(), "");
}

TEST_F(Shell, TheChosenBoardIsStoredAtOnce) {
  lap.Form_Load();
  journal.clear();
  for (auto* entry : {&lap.port.Mpcb32, &lap.port.Mpcb40}) entry->click();
  EXPECT_EQ(journal, (Journal{"set Monitra Setup/Setup.PCB=32", "set Monitra Setup/Setup.PCB=40"}));
}

}  // namespace
}  // namespace monitra::shell
