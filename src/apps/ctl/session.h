#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "host/host_files.h"
#include "host/pacer.h"
#include "host/windows1250.h"
#include "platform/port_registers.h"
#include "platform/sleeper.h"
#include "ports/simulated_port.h"
#include "settings/json_settings.h"
#include "settings/upload_folder.h"
#include "shell/lap.h"

namespace monitra::ctl {

/// A message box that came up.
struct ShownBox {
  std::string text;
  int style;
};

/// Boxes go to a function that answers them; all are kept.
class CtlBoxes : public platform::MessageBox {
 public:
  using Answer = std::function<platform::BoxAnswer(const std::string& text, int style)>;

  explicit CtlBoxes(Answer answer) : answer_(std::move(answer)) {}
  platform::BoxAnswer MsgBox(const std::string& text, int style) override;

  std::vector<ShownBox> shown;

 private:
  Answer answer_;
};

/// Nobody asks for a remedy here.
class NoRemedies : public platform::RemedyBox {
 public:
  bool show(const platform::Remedy& /*remedy*/) override { return false; }
};

/// The program's preferences with options of the command line above them. Nothing is stored.
class OptionSettings : public platform::SettingsStore {
 public:
  /// Empty texts leave the preference as it is. The preferences must outlive it.
  OptionSettings(platform::SettingsStore& preferences, std::string lptIndex, std::string pcb);
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override;
  void SaveSettings(const std::string& application, const std::string& section,
                    const Entries& entries) override;
  bool isDamaged(const std::string& application) override;

 private:
  platform::SettingsStore& preferences_;
  std::string lptIndex_;
  std::string pcb_;
};

/// The program's own model, started, with its dialog answered by the names of the command line.
/// Preferences that can't be read are told on standard error.
/// The ports and the sleeper must outlive it.
class Session {
 public:
  /// Preferences that the command line overrides; empty texts leave them as they are.
  struct Overrides {
    std::string lptIndex;
    std::string pcb;
  };

  /// Uploads are kept among those of the program, or not.
  enum class Uploads { Kept, Forgotten };

  Session(const Overrides& overrides, platform::PortRegisters& registers,
          platform::PortStates& ports, platform::Sleeper& sleeper, Uploads uploads,
          CtlBoxes::Answer answer);

  /// Whether the program that it accompanies has ever stored its port and board for this user.
  bool hasPreferences();

  /// Opens a Setup file; what no box tells goes to standard error.
  ExitCode openSetup(const std::string& path);

  /// The model's operations of these names.
  shell::OpenedFirmware openFirmware(const std::string& path);
  platform::Failure saveFirmware(const std::string& path);

 private:
  platform::ProgramIdentity program_;
  host::HostFiles files_;
  host::Windows1250 codePage_;
  settings::JsonSettings preferences_;
  OptionSettings settings_;
  settings::UploadFolder uploads_;
  platform::NoArchive forgotten_;
  platform::NoDialog dialog_;
  NoRemedies remedies_;

 public:
  CtlBoxes boxes;
  shell::Lap lap;
};

/// A session with a simulated port to which nobody listens.
class PortlessSession {
 public:
  explicit PortlessSession(CtlBoxes::Answer answer)
      : session({}, nowhere_, nowhere_, pacer_, Session::Uploads::Forgotten, std::move(answer)) {}

 private:
  ports::SimulatedPort nowhere_;
  host::Pacer pacer_;

 public:
  Session session;
};

/// The path from the root of the file system on.
std::string fullPath(const std::string& path);

}  // namespace monitra::ctl
