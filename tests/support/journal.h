#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <utility>
#include <vector>

#include "platform/file_dialog.h"
#include "platform/message_box.h"
#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "platform/remedy_box.h"
#include "platform/settings_store.h"
#include "platform/sleeper.h"
#include "platform/upload_archive.h"
#include "support/same.h"
#include "support/scratch.h"

/// Fakes of the outside world that write what happens, in order, into one journal.
namespace monitra::support {

inline std::string hex(int value) {
  char text[16];
  std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(value));
  return text;
}

/// From now on each value of the property goes into the journal, behind this name.
template <class Property>
void journalise(Journal& journal, Property& property, const std::string& name = {}) {
  auto observation = property.observe([=, &journal, &property] {
    std::ostringstream entry;
    entry << name << property.get();
    journal.push_back(entry.str());
  });
  static std::vector<decltype(observation)> forGood;
  forGood.push_back(std::move(observation));
}

constexpr int dataPin = 1 << 5;  ///< of the serial line, on either board

struct InJournal {
  explicit InJournal(Journal& journal) : journal_(journal) {}
  Journal& journal_;
};

/// Registers that remember: "r378" for a read, "w378=20" for a write, both in hexadecimal, and
/// "z1" for a wait of 1 ms.
class JournalPort : public platform::PortRegisters, public platform::Sleeper, InJournal {
 public:
  using InJournal::InJournal;

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
  void bePunctual(bool on) override { punctual = on; }
  std::chrono::nanoseconds now() const override { return time; }

  bool punctual = false;  ///< whether waits should now be as exact as they can
  std::chrono::nanoseconds time{};
  std::chrono::nanoseconds late{};  ///< by this much every wait takes longer than asked
  std::map<std::int32_t, std::uint8_t> values;
  long writesThatReach = -1;  ///< a port; -1: all
  long vanished = 0;
};

/// Boxes: "box 52: text", answered from a list; with the list empty, Yes or OK by the style.
class JournalBoxes : public platform::MessageBox, InJournal {
 public:
  using InJournal::InJournal;

  platform::BoxAnswer MsgBox(const std::string& text, int style) override {
    journal_.push_back("box " + std::to_string(style) + ": " + text);
    if (whileOpen) whileOpen();
    using platform::BoxAnswer;
    if (answers.empty())
      return platform::box_style::asksYesNo(style) ? BoxAnswer::Yes : BoxAnswer::Ok;
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  std::deque<platform::BoxAnswer> answers;
  std::function<void()> whileOpen;
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
    now.kind = platform::PortState::Kind::Kernel;
  }
  void markMessage(bool begins) override { inMessage = begins; }
  long vanished() const override { return port_.vanished; }

  platform::PortState now{.kind = platform::PortState::Kind::Kernel, .node = "/dev/parport0"};
  bool inMessage = false;

 private:
  Journal& journal_;
  const JournalPort& port_;
};

/// Remedies: "remedy text: command"; tried again as often as a test says.
class JournalRemedies : public platform::RemedyBox, InJournal {
 public:
  using InJournal::InJournal;

  bool show(const platform::Remedy& remedy) override {
    journal_.push_back("remedy " + remedy.text + ": " + remedy.command);
    return remedy.canRetry && retries-- > 0;
  }

  int retries = 0;
};

/// A dialog in which a path is chosen, or Cancel while there is none: "open Filter FileName".
class JournalDialog : public platform::FileDialog, InJournal {
 public:
  using InJournal::InJournal;

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
};

/// Keeps what goes out as files of a folder, or not.
class ScratchArchive : public platform::UploadArchive {
 public:
  explicit ScratchArchive(const Scratch& scratch) : scratch_(scratch) {}

  bool keep(std::string_view content, const std::string& port, const std::string& board) override {
    if (!works) return false;
    const std::string n = std::to_string(kept.size());
    kept.push_back(
        {scratch_.write("kept" + n, std::string(content)), "2026-11-24 07:00:0" + n, port, board});
    return true;
  }
  std::vector<platform::KeptUpload> list() override { return kept; }

  bool works = true;
  std::vector<platform::KeptUpload> kept;

 private:
  const Scratch& scratch_;
};

/// Settings in memory: "get Section.Key" and "set Application/Section.Key=value".
class JournalSettings : public platform::SettingsStore, InJournal {
 public:
  using InJournal::InJournal;

  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override {
    journal_.push_back("get " + section + "." + key);
    const auto& of = stored[application + "/" + section];
    const auto found = of.find(key);
    return found == of.end() ? fallback : found->second;
  }
  void SaveSettings(const std::string& application, const std::string& section,
                    const Entries& entries) override {
    for (const auto& [key, value] : entries) {
      journal_.push_back("set " + application + "/" + section + "." + key + "=" + value);
      stored[application + "/" + section][key] = value;
    }
  }
  bool isDamaged(const std::string& /*application*/) override { return damaged; }

  std::map<std::string, std::map<std::string, std::string>> stored;  ///< by "Application/Section"
  std::map<std::string, std::string>& values = stored["Monitra Setup/Setup"];  ///< the program's
  bool damaged = false;
};

/// What is written, or 0.
inline int levelsOf(const std::string& entry) {
  return static_cast<int>(std::strtol(entry.c_str() + entry.find('=') + 1, nullptr, 16));
}

/// The journal with the bytes on the serial line as decimal numbers, "99 0 16", in the place of
/// their register accesses. A byte is only what is one exactly, from the levels last written (0
/// ahead of the first write), no other pin moved: for each bit a read, then the data pin set, the
/// clock pin up and down, a wait of 1 ms behind each. All else stays as it stands.
inline Journal decoded(const Journal& raw, int clockPin = 1 << 7) {
  constexpr std::ptrdiff_t perBit = 7;
  Journal text;
  std::map<std::string, int> levels;
  bool goesOn = false;
  for (auto at = raw.begin(); at != raw.end();) {
    const std::string address = at->substr(std::min<std::size_t>(at->size(), 1), at->find('=') - 1);
    int byte = 0, after = levels[address];
    bool isByte = at->starts_with('r') && raw.end() - at >= 8 * perBit;
    for (int n = 0; isByte && n < 8; ++n) {
      const int data = (after & ~dataPin) | (levelsOf(at[1 + n * perBit]) & dataPin);
      after = data & ~clockPin;
      const std::string write = "w" + address + "=";
      const Journal bit{"r" + address, write + hex(data),  "z1", write + hex(data | clockPin),
                        "z1",          write + hex(after), "z1"};
      isByte = std::equal(bit.begin(), bit.end(), at + n * perBit);
      byte |= (data & dataPin) != 0 ? 1 << n : 0;
    }
    if (isByte) {
      if (!goesOn) text.emplace_back();
      text.back() += (goesOn ? " " : "") + std::to_string(byte);
    } else {
      text.push_back(*at);
    }
    levels[address] = isByte ? after : at->starts_with('w') ? levelsOf(*at) : levels[address];
    at += isByte ? 8 * perBit : 1;
    goesOn = isByte;
  }
  return text;
}

}  // namespace monitra::support
