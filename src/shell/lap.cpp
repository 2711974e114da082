#include "shell/lap.h"

#include <memory>
#include <utility>

#include "shell/event_texts.h"
#include "shell/port_texts.h"
#include "shell/window_controls.h"
#include "store/file_kind.h"
#include "store/text_reader.h"
#include "store/window_title.h"
#include "timing/numbers.h"

namespace monitra::shell {

using controls::Status;
using platform::BoxAnswer;
namespace box_style = platform::box_style;

namespace {

store::FileOutside fileOutside(const Outside& outside) {
  return {outside.Fileablak, outside.files, outside.codePage, outside.box, outside.program};
}

}  // namespace

Lap::Lap(Outside outside)
    : outside_(std::move(outside)),
      recorder_(outside_.registers, outside_.ports, outside_.sleeper),
      preferences_(outside_.settings, outside_.program.EXEName),
      timingFields_(kozos, setup),
      editions_(kozos, setup, timingFields_, outside_.box),
      holding_(kozos, setup, timingFields_, outside_.Beep),
      tuningFields_(setup),
      port_(port, [this](link::Pcb pcb) { preferences_.saveBoard(pcb == link::Pcb::V4x); }),
      line_(port_, recorder_, outside_.sleeper),
      frames_(line_),
      generator_(jog, port, port_, recorder_),
      bitOutput_(bits, jog, port, port_, recorder_),
      loadTest_(load, phases, frames_, outside_.Beep),
      phaseTest_(phases, loadTest_, frames_),
      upload_(setup, line_, outside_.box),
      files_(fileOutside(outside_), kozos, setup, editions_, form),
      firmware_(fileOutside(outside_), kozos, setup, timingFields_, editions_, form),
      revisions({kozos, setup, timingFields_, editions_}, {outside_.files, outside_.codePage},
                outside_.archive) {
  giveCaptions(*this);
  bindMenus();
  SSTab1.Tab.handle([this] { SSTab1_Click(); });
  upload_.begun.handle([this] { Esemeny.clear(); });
  upload_.sending.handle([this] { vanishedBefore_ = outside_.ports.vanished(); });
  upload_.sent.handle([this] { tellUploaded(); });
  bindBench();
  bindRefusals();
  PortTeendo.Click.handle([this] { PortTeendo_Click(); });
  line_.inMessage = [this](bool begins) { inMessage(begins); };
  outside_.ports.changed = [this] { showPort(); };
  recorder_.changed = [this] { showLamps(); };
  board_ = port.PCBV.Caption.observe([this] {
    recorder_.use(port_.pcb());
    showLamps();
  });
}

void Lap::bindMenus() {
  MFSetNyit.Click.handle([this] { openSetup(); });
  MFSetMent.Click.handle([this] { saveSetup(); });
  MFkilepes.Click.handle([this] { MFkilepes_Click(); });
  Nev.Click.handle([this] { Nev_Click(); });
}

void Lap::bindBench() {
  SSTab1.GotFocus.handle([this] { generator_.SSTab1_GotFocus(); });
  generator_.switched.handle([this] {
    if (!jog.Impulzus.Value) return Esemeny.clear();
    const int interval = jog.Timer1.Interval;
    Esemeny.show(interval > 0 ? Status::Plain : Status::Warning, generatorText(interval));
  });
  bitOutput_.sent.handle([this] { tellBitsSent(); });
  loadTest_.begun.handle([this] { Esemeny.clear(); });
  loadTest_.refused.handle(
      [this] { Esemeny.show(Status::Warning, missingPermitText(load.TulH.Checked)); });
}

void Lap::bindRefusals() {
  setup.Letolt.Refused.handle([this] { Esemeny.show(Status::Warning, uploadRefusedText()); });
  for (int n = 0; n < 6; ++n) {
    jog.Mozg[n].Refused.handle([this] { Esemeny.show(Status::Warning, jogRefusedText()); });
  }
}

void Lap::Form_Load() {
  kozos.VerFo = "5";
  kozos.VerAl = "0";
  kozos.VerRev = "3";
  kozos.Modositott = 0;
  loadTest_.TapLepes = 0;
  port.LPT.ListIndex = preferences_.lptIndex();
  jog.Seb.Text = preferences_.seb();
  for (int n = 0; n < 3; ++n) jog.Invert[n].Checked = preferences_.inverted(n);
  kozos.Alapido = timing::slowBase;
  setup.Verz.Caption = "V?.?.?";
  kozos.FirmwareNev.clear();
  timingFields_.MindFrissit();
  setup.Funkcio.ListIndex = 0;
  tuningFields_.showUthossz();
  form.Caption = store::windowTitle(outside_.program);
  port_.PcbAlkalmaz(preferences_.boardV4x() ? link::Pcb::V4x : link::Pcb::V32);
  loadInfo();
  line_.SorosAlap();
  editions_.MBKTarso_Click();
  revisions.start();
  selection_ = port.LPT.ListIndex.observe([this] {
    showPort();
    showLamps();
  });
  showPort();
  Esemeny.show(Status::Warning, preferencesText(preferences_.standing()));
}

void Lap::loadInfo() {
  const std::string name = "Info.txt";
  const std::string path = outside_.program.Path + "/" + name;
  std::unique_ptr<platform::ByteReader> file;
  if (outside_.files.Dir(path) != name ||
      outside_.files.openForReading(path, file) != platform::Failure::None) {
    InfoT.Text = "hiányzik";
    return;
  }
  store::TextReader reader(std::move(file));
  std::string text;
  for (std::string line; reader.readLine(line) == platform::Failure::None;) text += line + "\r\n";
  InfoT.Text = outside_.codePage.toUtf8(text);
}

void Lap::Form_Unload() {
  jog.releaseAll();
  if (kozos.Modositott != 0 &&
      outside_.box.MsgBox("Nem mentette a beállításokat!\r\nBefejezés előtt akarja ezeket menteni?",
                          box_style::question | box_style::yesNo) == BoxAnswer::Yes) {
    files_.MFSetMent_Click();
  }
  endWithoutQuestion();
}

void Lap::endWithoutQuestion() {
  if (std::exchange(ended_, true)) return;
  jog.releaseAll();
  switchMotorsOff();
  preferences_.save(port.LPT.ListIndex, jog.Seb.Text,
                    {jog.Invert[0].Checked, jog.Invert[1].Checked, jog.Invert[2].Checked});
  outside_.end();
}

void Lap::switchMotorsOff() {
  const long vanished = outside_.ports.vanished();
  frames_.allMotorsOff();
  if (outside_.ports.vanished() == vanished) return;
  outside_.ports.tryAgain(selectedAddress());
  if (outside_.ports.state(selectedAddress()).inUse()) frames_.allMotorsOff();
}

void Lap::inMessage(bool begins) {
  outside_.ports.markMessage(begins);
  inMessage_ = begins;
  showLamps();
  if (begins) {
    // What was cut short may have left the clock high, and the next bit would be lost.
    if (cutShort_) line_.SorosAlap();
    vanishedAtBegin_ = outside_.ports.vanished();
  } else {
    cutShort_ = outside_.ports.vanished() != vanishedAtBegin_;
  }
}

void Lap::MFkilepes_Click() {
  Form_Unload();
}

void Lap::Nev_Click() {
  const platform::ProgramIdentity& program = outside_.program;
  outside_.box.MsgBox(
      "Tarso1 CNC Vezérlő, Monitra program, integrált bújtatott soros adatátvitellel.\r\n"
      "Verzió: " +
          timing::numberText(program.Major) + " ." + timing::numberText(program.Minor) + " ." +
          timing::numberText(program.Revision) +
          "\r\n2026, a Monitra fejlesztői, www.monitra.example\r\n"
          "A kapcsolási rajzért és a részletekért kérem látogassa meg weblapomat.",
      box_style::information | box_style::okOnly);
}

void Lap::SSTab1_Click() {
  if (SSTab1.Tab == tabOfPcLink) line_.SorosAlap();
}

void Lap::PortTeendo_Click() {
  const auto remedy = [this] {
    showPort();
    return portRemedy(outside_.ports.state(selectedAddress()), port.LPT.text());
  };
  while (outside_.remedies.show(remedy())) outside_.ports.tryAgain(selectedAddress());
}

void Lap::showPort() {
  const platform::PortState state = outside_.ports.state(selectedAddress());
  if (shownPort_ == state) return;
  shownPort_ = state;
  PortAllapot.show(portStatus(state), portText(state, port.LPT.text()));
}

void Lap::tellUploaded() {
  const bool inUse = outside_.ports.state(selectedAddress()).inUse();
  const long vanished = outside_.ports.vanished() - vanishedBefore_;
  if (inUse && vanished == 0) {
    revisions.marks.sent();
    const bool kept = revisions.history.keep(setup, kozos, port.LPT.text(), port.PCBV.Caption);
    Esemeny.show(kept ? Status::Done : Status::Warning, sentText(upload_.timing(), kept));
  } else {
    Esemeny.show(Status::Fault, vanished < link::uploadWrites ? cutShortText() : nothingSentText());
  }
  uploaded.raise();
}

void Lap::tellBitsSent() {
  const std::int32_t data = port_.AdatPort;
  const std::int32_t control = port_.VezerloPort;
  const wire::Trace& trace = recorder_.trace(data);
  const bool all = recorder_.wentOut(data) && recorder_.wentOut(control);
  if (!all) {
    const bool none = !recorder_.wentOut(data) && !recorder_.wentOut(control);
    return Esemeny.show(Status::Fault, none ? nothingSentText() : halfSentText());
  }
  const bool spins = trace.machine().spindle.value_or(false);
  Esemeny.show(spins ? Status::Warning : Status::Plain,
               bitsSentText(data, control, trace.levels(), spins));
}

void Lap::showLamps() {
  // In a message the clock is high by turns, and what the bytes come to is not known yet.
  if (inMessage_) return;
  bool energised = false;
  bool spins = false;
  for (const std::int32_t entry : wire::Recorder::ports) {
    const controller::Machine& machine = recorder_.trace(entry).machine();
    energised = energised || machine.loadPercent() > 0;
    spins = spins || machine.spindle.value_or(false);
  }
  const wire::Trace& selected = recorder_.trace(selectedAddress());
  MotorAram.On = energised;
  Maromotor.On = spins;
  OrajelMagas.On = (selected.levels() & wire::wireMask(selected.layout().lines.clock)) != 0;
}

void Lap::openSetup() {
  Esemeny.clear();
  revisions.undo.close();
  const store::OpenResult result = files_.MFSetNyit_Click();
  if (!result.records.empty()) revisions.marks.opened(result.records);
  revisions.undo.close();
  const bool cutShort = result.failure == platform::Failure::EndOfFile;
  Esemeny.show(
      result.failure == platform::Failure::None || cutShort ? Status::Warning : Status::Fault,
      openingText(result));
}

void Lap::saveSetup() {
  Esemeny.clear();
  const platform::Failure failure = files_.MFSetMent_Click();
  if (failure != platform::Failure::Cancel) {
    failure == platform::Failure::None ? revisions.marks.saved() : revisions.marks.notSaved();
  }
  const std::string& copy = files_.keptCopy();
  const Status kind = failure != platform::Failure::None ? Status::Fault
                      : copy.empty()                     ? Status::Done
                                                         : Status::Warning;
  Esemeny.show(kind, savingText(failure, outside_.Fileablak.FileName, copy));
}

OpenedFirmware Lap::openFirmware() {
  Esemeny.clear();
  OpenedFirmware opened;
  revisions.undo.close();
  opened.read = firmware_.FirmwareNyit();
  revisions.undo.close();
  kozos.Modositott = 0;
  const platform::Failure failure = opened.read.failure;
  if (failure != platform::Failure::Cancel && failure != platform::Failure::FileNotFound) {
    opened.image = firmware::checkImage(outside_.files, kozos.FirmwareUtvonal);
    Esemeny.show(firmwareStatus(opened.read, opened.image),
                 firmwareText(opened.read, opened.image, kozos.FirmwareNev, setup.Verz.Caption));
  }
  return opened;
}

platform::Failure Lap::saveFirmware() {
  Esemeny.clear();
  kozos.Modositott = 0;
  const platform::Failure failure = firmware_.FirmwareMent();
  Esemeny.show(failure == platform::Failure::None ? Status::Done : Status::Fault,
               savingText(failure, outside_.Fileablak.FileName));
  return failure;
}

void Lap::undo() {
  Esemeny.show(Status::Plain, revisions.undoStep());
}

void Lap::redo() {
  Esemeny.show(Status::Plain, revisions.redoStep());
}

void Lap::revert(std::size_t column, const std::vector<revisions::FieldIndex>& fields) {
  Esemeny.show(Status::Plain, revisions.revert(column, fields));
}

void Lap::copyAxis(int axis) {
  Esemeny.show(Status::Plain, revisions.copyAxis(axis));
}

void Lap::openDropped(const std::string& path) {
  const store::FileKind kind = store::fileKind(path);
  const platform::GivenName name(outside_.Fileablak, path);
  if (kind == store::FileKind::Setup) openSetup();
  if (kind == store::FileKind::Firmware) openFirmware();
}

}  // namespace monitra::shell
