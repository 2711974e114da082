#pragma once

#include <functional>
#include <optional>
#include <string>

#include "bench/bit_output.h"
#include "bench/load_test.h"
#include "bench/phase_test.h"
#include "bench/pulse_generator.h"
#include "controls/controls.h"
#include "firmware/firmware_files.h"
#include "firmware/image_check.h"
#include "link/command_frames.h"
#include "link/port_panel.h"
#include "link/port_selection.h"
#include "link/serial_line.h"
#include "link/upload.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "platform/program_identity.h"
#include "platform/remedy_box.h"
#include "platform/settings_store.h"
#include "platform/sleeper.h"
#include "platform/upload_archive.h"
#include "revisions/revisions.h"
#include "store/preferences.h"
#include "store/setup_files.h"
#include "timing/editions.h"
#include "timing/holding_frequency.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"
#include "timing/timing_fields.h"
#include "timing/tuning_fields.h"
#include "wire/recorder.h"

namespace monitra::shell {

/// All that the program asks of the outside world. What it refers to must outlive the Lap.
struct Outside {
  platform::PortRegisters& registers;
  platform::PortStates& ports;
  platform::Sleeper& sleeper;
  platform::MessageBox& box;
  platform::RemedyBox& remedies;
  platform::FileDialog& Fileablak;
  platform::Files& files;
  const platform::CodePage& codePage;
  platform::SettingsStore& settings;
  platform::UploadArchive& archive;
  const platform::ProgramIdentity& program;
  /// A short sound.
  std::function<void()> Beep;
  /// Ends the process at once.
  std::function<void()> end;
};

/// How the reading of a firmware file ended, and what its image is like if there is one.
struct OpenedFirmware {
  firmware::ReadResult read;
  firmware::ImageReport image;
};

/// The window: the panels of all rooms, the handlers on them, start-up and shutdown.
/// Handlers are bound on construction; Form_Load is to be called once, before anything else.
class Lap {
 public:
  explicit Lap(Outside outside);
  Lap(const Lap&) = delete;
  Lap& operator=(const Lap&) = delete;

  void Form_Load();

  /// Shutdown: the question on unsaved changes, the motors off, the preferences, the end. Can't be
  /// refused. A second call, from inside the first one's question, goes through and wins.
  void Form_Unload();

  /// Shutdown without its question, for a signal or the end of the desktop session. Once only.
  void endWithoutQuestion();

  void MFkilepes_Click();
  void Nev_Click();
  void SSTab1_Click();
  void PortTeendo_Click();

  /// Brings PortAllapot up to date, if there is anything new to say.
  void showPort();

  /// Read a firmware file, and write a copy of it with the present Setup. No control leads here.
  OpenedFirmware openFirmware();
  platform::Failure saveFirmware();

  /// A file has been dropped on the window: opens a Setup file and reads a firmware file, whose
  /// kind its extension tells; any other file is left alone.
  void openDropped(const std::string& path);

  /// The Setup as it was one step before, or the undone step again; some fields as a column of the
  /// comparison has them; the fields of an axis for the other two. Esemeny tells what came of it.
  void undo();
  void redo();
  void revert(std::size_t column, const std::vector<revisions::FieldIndex>& fields);
  void copyAxis(int axis);

  /// For a caller that needs to know how an operation went.
  store::SetupFiles& setupFiles() { return files_; }
  link::Pcb pcb() const { return port_.pcb(); }
  std::int32_t selectedAddress() const { return port_.selectedAddress(); }
  link::CommandFrames& frames() { return frames_; }

  timing::Kozos kozos;
  controls::Form form;
  timing::SetupPanel setup;
  link::PortPanel port;
  bench::JogPanel jog;
  bench::BitPanel bits;
  bench::PhasePanel phases;
  bench::LoadPanel load;

  controls::TabStrip SSTab1{4};
  static constexpr int tabOfPcLink = 2;
  controls::MenuEntry MFSetNyit;
  controls::MenuEntry MFSetMent;
  controls::MenuEntry MFkilepes;
  controls::MenuEntry Nev;
  controls::TextBox InfoT{{}, true};

  /// The footer's status: which port serves the selected entry, or why none does, with the way to
  /// a remedy; and what the last operation came to, where no box tells it.
  controls::StatusLabel PortAllapot;
  controls::PushButton PortTeendo;
  controls::StatusLabel Esemeny;

  /// What stands on the pins, by the levels that went out in this run and for as long as nothing
  /// else has: a winding is on, or the router's relay, on any port; the clock of the selected
  /// port's serial line is high, so that the next message would arrive shifted.
  controls::Lamp MotorAram;
  controls::Lamp Maromotor;
  controls::Lamp OrajelMagas;

  controls::PushButton Jelek;  ///< for a window that shows what went out

  /// The two marks of the Setup, for a window that shows what has changed.
  controls::PushButton MentesJel;
  controls::PushButton KuldesJel;

  /// What has gone out, and what a controller makes of it.
  const wire::Recorder& recorder() const { return recorder_; }
  /// To be called about once a second: the records go on, with nothing going out, up to now.
  void passTime() { recorder_.pass(); }

  /// An upload's last byte is out and Esemeny tells it; the box at its end has not come up yet.
  controls::Event uploaded;

 private:
  void bindMenus();
  void bindBench();
  void bindRefusals();
  void tellUploaded();
  void tellBitsSent();
  void showLamps();
  /// Once more from the beginning if the port went away meanwhile and has come back.
  void switchMotorsOff();
  /// A message begins or has ended; one that was cut short before it leaves the line to be idled.
  void inMessage(bool begins);
  void openSetup();
  void saveSetup();
  void loadInfo();

  Outside outside_;
  wire::Recorder recorder_;
  store::Preferences preferences_;
  timing::TimingFields timingFields_;
  timing::Editions editions_;
  timing::HoldingFrequency holding_;
  timing::TuningFields tuningFields_;
  link::PortSelection port_;
  link::SerialLine line_;
  link::CommandFrames frames_;
  bench::PulseGenerator generator_;
  bench::BitOutput bitOutput_;
  bench::LoadTest loadTest_;
  bench::PhaseTest phaseTest_;
  link::Upload upload_;
  store::SetupFiles files_;
  firmware::FirmwareFiles firmware_;
  std::optional<platform::PortState> shownPort_;
  long vanishedBefore_ = 0;   ///< the upload
  long vanishedAtBegin_ = 0;  ///< of the last message
  bool cutShort_ = false;     ///< it didn't all go out
  bool inMessage_ = false;
  bool ended_ = false;
  controls::Observation selection_;  ///< of the port
  controls::Observation board_;

 public:
  revisions::Revisions revisions;  ///< of the Setup
};

}  // namespace monitra::shell
