#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "host/host_files.h"
#include "host/windows1250.h"
#include "platform/port_registers.h"
#include "platform/sleeper.h"
#include "settings/json_settings.h"
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

/// A file dialog in which the given path is chosen.
class GivenFile : public platform::FileDialog {
 public:
  explicit GivenFile(const std::string& path);
  platform::Failure ShowOpen() override;
  platform::Failure ShowSave() override;

 private:
  std::string path_;
};

/// The program's preferences with options of the command line above them. Nothing is stored.
class OptionSettings : public platform::SettingsStore {
 public:
  /// Empty texts leave the preference as it is. The preferences must outlive it.
  OptionSettings(platform::SettingsStore& preferences, std::string lptIndex, std::string pcb);
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override;
  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) override;

 private:
  platform::SettingsStore& preferences_;
  std::string lptIndex_;
  std::string pcb_;
};

/// The program's own model, started, with a file chosen in its dialog. Preferences that can't be
/// read are told on standard error.
/// The port and the sleeper must outlive it.
class Session {
 public:
  struct Options {
    std::string file;
    std::string lptIndex;
    std::string pcb;
  };

  Session(const Options& options, platform::PortRegisters& registers, platform::Sleeper& sleeper,
          CtlBoxes::Answer answer);

  /// Opens the chosen file; what no box tells goes to standard error.
  ExitCode open();

 private:
  platform::ProgramIdentity program_;
  host::HostFiles files_;
  host::Windows1250 codePage_;
  settings::JsonSettings preferences_;
  OptionSettings settings_;
  GivenFile dialog_;

 public:
  CtlBoxes boxes;
  shell::Lap lap;
};

/// A box's text with line feeds only.
std::string boxLines(const std::string& text);

}  // namespace monitra::ctl
