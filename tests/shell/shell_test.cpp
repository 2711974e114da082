#include "support/session.h"

namespace monitra::shell {
namespace {

using namespace support;

const std::string question =
    "box 36: Nem mentette a beállításokat!\r\nBefejezés előtt akarja ezeket menteni?";
const std::string save = "save Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* Modositott.pwm";

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

TEST_F(Session, ASignalEndsWithoutAQuestionAlsoInsideOne) {
  dialog.whileOpen = nullptr;
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

TEST(PortTexts, NameThePortInUseOrTellWhyNothingGoesOutAndTheRemedy) {
  using platform::PortState;
  for (const Row& row : rows("ports")) {
    const PortState state{.kind = static_cast<PortState::Kind>(std::stoi(row[0])),
                          .address = std::stoi(row[1], nullptr, 16),
                          .node = row[2],
                          .holder = row[3],
                          .holderIsDriver = row[4] == "driver",
                          .group = "lp",
                          .forSeat = row[4] == "seat",
                          .comesAtStart = row[4] == "start",
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

TEST_F(Session, EveryActionTellsWhatComesOfIt) {
  const std::map<std::string, Action> more{
      {"upload", [this](auto&, auto&) { lap.setup.Letolt.click(); }},
      {"saved and sent",
       [this](auto& name, auto& text) {
         files.mend();
         choose(name, text);
         lap.MFSetNyit.click();
         lap.setup.Letolt.click();
         EXPECT_EQ(marks, " ");
         values = shown();
         journal.clear();
       }},
      {"pause", [this](auto&, auto&) { lap.revisions.undo.close(); }},
      {"settle", [this](auto&, auto&) { lap.revisions.undo.settle(); }},
      {"undo", [this](auto&, auto&) { lap.undo(); }},
      {"redo", [this](auto&, auto&) { lap.redo(); }},
      {"copy", [this](auto& axis, auto&) { lap.copyAxis(std::stoi(axis)); }},
      {"revert",
       [this](auto& column, auto& field) {
         lap.revert(std::stoul(column),
                    field.empty() ? revisions::allFields() : std::vector{std::stoul(field)});
       }},
      {"jog", [this](auto&, auto&) { lap.jog.Mozg[0].press(); }},
      {"version", [this](auto& text, auto&) { lap.setup.Verz.Caption = text; }},
      {"whole steps", [this](auto&, auto&) { lap.setup.Xegesz.click(); }},
      {"generator", [this](auto&, auto&) { lap.jog.Impulzus.click(); }},
      {"load", [this](auto&, auto&) { lap.load.TapFel.click(); }},
      {"permit", [this](auto&, auto&) { lap.load.TulH.click(); }},
      {"stop", [this](auto&, auto&) { lap.load.TapStop.click(); }},
      {"bit", [this](auto& i, auto&) { lap.port.Bitcim[std::stoi(i)].click(); }},
      {"send",
       [this](auto& zeros, auto&) { (zeros.empty() ? lap.bits.Kuld : lap.bits.Torles).click(); }},
      {"port", [this](auto& i, auto&) { lap.port.LPT.select(std::stoi(i)); }},
      {"lost",
       [this](auto& kind, auto&) { ports.now.kind = platform::PortState::Kind{std::stoi(kind)}; }},
      {"find", [this](auto&, auto&) { ports.changed(); }},
      {"remedy",
       [this](auto& tries, auto&) { remedies.retries = std::stoi(tries), lap.PortTeendo.click(); }},
      {"reach",
       [this](auto& writes, auto& late) {
         registers.writesThatReach = std::stoi(writes);
         registers.late = std::chrono::microseconds(std::stoi(late));
       }},
      {"end", [this](auto& name,
                     auto&) { box.whileOpen = nullptr, choose(name, {}), lap.MFkilepes.click(); }},
      {"save in a box",
       [this](auto&, auto&) { box.whileOpen = [this] { lap.MFSetMent.click(); }; }}};
  actions.insert(more.begin(), more.end());
  for (const char* const shorter : {"", "pwm"}) lap.openDropped(shorter);
  EXPECT_TRUE(same(journal, {}));
  play("session");
}

}  // namespace
}  // namespace monitra::shell
