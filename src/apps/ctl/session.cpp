#include "apps/ctl/session.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "host/executable.h"
#include "shell/event_texts.h"

namespace monitra::ctl {

using platform::BoxAnswer;
using platform::Failure;

namespace {

/// This tool works with the port and board that are set in the program it accompanies.
platform::ProgramIdentity accompaniedProgram() {
  platform::ProgramIdentity program = host::programIdentity("Monitra Setup");
  program.EXEName = "Monitra Setup";
  return program;
}

}  // namespace

std::string fullPath(const std::string& path) {
  std::error_code error;
  std::filesystem::path full = std::filesystem::absolute(path, error);
  if (error) full = path;
  return full;
}

BoxAnswer CtlBoxes::MsgBox(const std::string& text, int style) {
  shown.push_back({text, style});
  return answer_(text, style);
}

OptionSettings::OptionSettings(platform::SettingsStore& preferences, std::string lptIndex,
                               std::string pcb)
    : preferences_(preferences), lptIndex_(std::move(lptIndex)), pcb_(std::move(pcb)) {}

std::string OptionSettings::GetSetting(const std::string& application, const std::string& section,
                                       const std::string& key, const std::string& fallback) {
  if (key == "LPT" && !lptIndex_.empty()) return lptIndex_;
  if (key == "PCB" && !pcb_.empty()) return pcb_;
  return preferences_.GetSetting(application, section, key, fallback);
}

void OptionSettings::SaveSettings(const std::string& /*application*/,
                                  const std::string& /*section*/, const Entries& /*entries*/) {}

bool OptionSettings::isDamaged(const std::string& application) {
  return preferences_.isDamaged(application);
}

Session::Session(const Overrides& overrides, platform::PortRegisters& registers,
                 platform::PortStates& ports, platform::Sleeper& sleeper, Uploads uploads,
                 CtlBoxes::Answer answer)
    : program_(accompaniedProgram()),
      preferences_(settings::userSettingsFolder()),
      settings_(preferences_, overrides.lptIndex, overrides.pcb),
      uploads_(settings::uploadFolder(program_.EXEName)),
      boxes(std::move(answer)),
      lap({registers, ports, sleeper, boxes, remedies_, dialog_, files_, codePage_, settings_,
           uploads == Uploads::Kept ? static_cast<platform::UploadArchive&>(uploads_) : forgotten_,
           program_, [] {}, [] { std::_Exit(done); }}) {
  lap.Form_Load();
  if (!lap.Esemeny.Caption.get().empty()) std::cerr << lap.Esemeny.Caption.get() << '\n';
}

bool Session::hasPreferences() {
  return !preferences_.isDamaged(program_.EXEName) &&
         !preferences_.GetSetting(program_.EXEName, "Setup", "LPT", "").empty();
}

ExitCode Session::openSetup(const std::string& path) {
  const platform::GivenName name(dialog_, fullPath(path));
  const store::OpenResult result = lap.setupFiles().MFSetNyit_Click();
  const std::string remark = shell::openingText(result);
  if (!remark.empty()) std::cerr << path << ": " << remark << '\n';
  return result.failure == Failure::None ? done : fileError;
}

shell::OpenedFirmware Session::openFirmware(const std::string& path) {
  const platform::GivenName name(dialog_, fullPath(path));
  return lap.openFirmware();
}

Failure Session::saveFirmware(const std::string& path) {
  const platform::GivenName name(dialog_, fullPath(path));
  return lap.saveFirmware();
}

}  // namespace monitra::ctl
