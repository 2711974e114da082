#pragma once

#include <chrono>
#include <cstdio>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/file_dialog.h"
#include "platform/message_box.h"
#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "platform/remedy_box.h"
#include "platform/settings_store.h"
#include "platform/sleeper.h"

/// Fakes of the outside world that write what happens, in order, into one journal.
namespace monitra::support {

using Journal = std::vector<std::string>;

inline std::string hex(int value) {
  char text[16];
  std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(value));
  return text;
}

/// Registers that remember: "r378" for a read, "w378=20" for a write, both in hexadecimal, and
/// "z1" for a wait of 1 ms.
class JournalPort : public platform::PortRegisters, public platform::Sleeper {
 public:
  explicit JournalPort(Journal& journal) : journal_(journal) {}

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override {
    journal_.push_back("r" + hex(address));
    return values[address];
  }
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override {
    journal_.push_back("w" + hex(address) + "=" + hex(value));
    values[address] = value;
    if (writesThatReach == 0) ++vanished;
    if (writesThatReach > 0) --writesThatReach;
  }
  void Sleep(int milliseconds) override {
    journal_.push_back("z" + std::to_string(milliseconds));
    time += std::chrono::milliseconds(milliseconds) + late;
  }
  std::chrono::nanoseconds now() const override { return time; }

  std::chrono::nanoseconds time{};
  std::chrono::nanoseconds late{};  ///< by this much every wait takes longer than asked
  std::map<std::int32_t, std::uint8_t> values;
  long writesThatReach = -1;  ///< a port; -1: all
  long vanished = 0;

 private:
  Journal& journal_;
};

/// Boxes: "box 52: text", answered from a list; with the list empty, Yes or OK by the style.
class JournalBoxes : public platform::MessageBox {
 public:
  explicit JournalBoxes(Journal& journal) : journal_(journal) {}

  platform::BoxAnswer MsgBox(const std::string& text, int style) override {
    journal_.push_back("box " + std::to_string(style) + ": " + text);
    if (whileOpen) whileOpen();
    if (answers.empty()) {
      return platform::box_style::asksYesNo(style) ? platform::BoxAnswer::Yes
                                                   : platform::BoxAnswer::Ok;
    }
    const platform::BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::deque<platform::BoxAnswer> answers;
  std::function<void()> whileOpen;

 private:
  Journal& journal_;
};

/// The port of every entry in the state that a test gives it; "open 378" for a new try.
class JournalStates : public platform::PortStates {
 public:
  JournalStates(Journal& journal, const JournalPort& port) : journal_(journal), port_(port) {}

  platform::PortState state(std::int32_t entry) override {
    platform::PortState present = now;
    present.address = entry;
    return present;
  }
  void tryAgain(std::int32_t entry) override {
    journal_.push_back("open " + hex(entry));
    now = afterRetry;
  }
  void markMessage(bool begins) override {
    if (begins) ++messages;
    inMessage = begins;
  }
  long vanished() const override { return port_.vanished; }

  platform::PortState now{.kind = platform::PortState::Kind::Kernel, .node = "/dev/parport0"};
  platform::PortState afterRetry = now;
  int messages = 0;
  bool inMessage = false;

 private:
  Journal& journal_;
  const JournalPort& port_;
};

/// Remedies: "remedy text: command"; tried again as often as a test says.
class JournalRemedies : public platform::RemedyBox {
 public:
  explicit JournalRemedies(Journal& journal) : journal_(journal) {}

  bool show(const platform::Remedy& remedy) override {
    journal_.push_back("remedy " + remedy.text + ": " + remedy.command);
    return remedy.canRetry && retries-- > 0;
  }

  int retries = 0;

 private:
  Journal& journal_;
};

/// A dialog in which a path is chosen, or Cancel while there is none: "open Filter FileName".
class JournalDialog : public platform::FileDialog {
 public:
  explicit JournalDialog(Journal& journal) : journal_(journal) {}

  std::optional<std::string> path;
  std::function<void()> whileOpen;

 private:
  platform::Failure askOpen() override { return show("open"); }
  platform::Failure askSave() override { return show("save"); }
  platform::Failure show(const std::string& kind) {
    journal_.push_back(kind + " " + Filter + " " + FileName);
    if (whileOpen) whileOpen();
    if (!path) return platform::Failure::Cancel;
    choose(*path);
    return platform::Failure::None;
  }

  Journal& journal_;
};

/// Settings in memory: "get Section.Key" and "set Application/Section.Key=value".
class JournalSettings : public platform::SettingsStore {
 public:
  explicit JournalSettings(Journal& journal) : journal_(journal) {}

  std::string GetSetting(const std::string& /*application*/, const std::string& section,
                         const std::string& key, const std::string& fallback) override {
    journal_.push_back("get " + section + "." + key);
    const auto found = values.find(key);
    return found == values.end() ? fallback : found->second;
  }
  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) override {
    journal_.push_back("set " + application + "/" + section + "." + key + "=" + value);
    values[key] = value;
  }

  std::map<std::string, std::string> values;

 private:
  Journal& journal_;
};

/// The journal of bytes sent on the serial line from this state of the data register, least
/// significant bit first; gives the state afterwards.
inline std::uint8_t expectBytes(Journal& journal, const std::string& address, std::uint8_t state,
                                int dataBit, int clockBit, const std::vector<int>& bytes) {
  int levels = state;
  for (const int byte : bytes) {
    for (int n = 0; n < 8; ++n) {
      const int data = (levels & ~(1 << dataBit)) | (byte >> n & 1) << dataBit;
      levels = data & ~(1 << clockBit);
      journal.push_back("r" + address);
      for (const int phase : {data, data | 1 << clockBit, levels}) {
        journal.push_back("w" + address + "=" + hex(phase));
        journal.emplace_back("z1");
      }
    }
  }
  return static_cast<std::uint8_t>(levels);
}

}  // namespace monitra::support
