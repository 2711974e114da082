#pragma once

#include <algorithm>
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
#include "support/same.h"

/// Fakes of the outside world that write what happens, in order, into one journal.
namespace monitra::support {

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

inline constexpr std::size_t bitEntries = 7;

/// The entries of one bit on the serial line, from these levels of the data register on,
/// which it moves on.
inline Journal bitOnLine(const std::string& address, int& levels, bool high, int clockBit) {
  constexpr int dataPin = 1 << 5;
  const int clockPin = 1 << clockBit;
  const int data = (levels & ~dataPin) | (high ? dataPin : 0);
  levels = data & ~clockPin;
  Journal entries{"r" + address};
  for (const int phase : {data, data | clockPin, levels}) {
    entries.push_back("w" + address + "=" + hex(phase));
    entries.emplace_back("z1");
  }
  return entries;
}

/// The journal of bytes sent on the serial line from this state of the data register, least
/// significant bit first; gives the state afterwards.
inline std::uint8_t expectBytes(Journal& journal, const std::string& address, std::uint8_t state,
                                int /*dataBit*/, int clockBit, const std::vector<int>& bytes) {
  int levels = state;
  for (const int byte : bytes) {
    for (int n = 0; n < 8; ++n) {
      for (const auto& entry : bitOnLine(address, levels, (byte >> n & 1) != 0, clockBit)) {
        journal.push_back(entry);
      }
    }
  }
  return static_cast<std::uint8_t>(levels);
}

/// The byte that begins at this entry, if one does, from these levels on, which it moves on.
inline std::optional<int> byteOnLine(const Journal& raw, std::size_t at, int& levels,
                                     int clockBit) {
  int byte = 0, present = levels;
  if (raw.size() - at < 8 * bitEntries) return {};
  for (int bit = 0; bit < 8; ++bit) {
    bool found = false;
    for (const bool high : {false, true}) {
      int next = present;
      const Journal entries = bitOnLine(raw[at].substr(1), next, high, clockBit);
      const auto from = raw.begin() + static_cast<std::ptrdiff_t>(at);
      if (found || !std::equal(entries.begin(), entries.end(), from)) continue;
      at += entries.size();
      byte |= static_cast<int>(high) << bit;
      present = next;
      found = true;
    }
    if (!found) return {};
  }
  levels = present;
  return byte;
}

/// The journal with the bytes on the serial line as decimal numbers, "99 0 16", in the place of
/// their register accesses. A byte is only what is one exactly, from the levels last written
/// (0 ahead of the first write): each bit a read, the data pin set, the clock pin up and down, a
/// wait of 1 ms behind each write, no other pin moved. All else stays as it stands.
inline Journal decoded(const Journal& raw, int clockBit = 7) {
  Journal text;
  std::map<std::string, int> levels;
  bool goesOn = false;
  for (std::size_t at = 0; at < raw.size();) {
    const std::string& entry = raw[at];
    std::optional<int> byte;
    if (entry.starts_with('r')) byte = byteOnLine(raw, at, levels[entry.substr(1)], clockBit);
    if (byte) {
      if (!goesOn) text.emplace_back();
      text.back() += (goesOn ? " " : "") + std::to_string(*byte);
      at += 8 * bitEntries;
    } else {
      const std::size_t sign = entry.find('=');
      if (entry.starts_with('w')) {
        levels[entry.substr(1, sign - 1)] = std::stoi(entry.substr(sign + 1), nullptr, 16);
      }
      text.push_back(entry);
      ++at;
    }
    goesOn = byte.has_value();
  }
  return text;
}

}  // namespace monitra::support
