#include <array>
#include <chrono>
#include <cstdio>
#include <deque>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "apps/ctl/json.h"
#include "apps/ctl/terminal.h"
#include "host/host_files.h"
#include "store/failure_texts.h"
#include "wire/comparison.h"
#include "wire/message_text.h"
#include "wire/vcd_reader.h"

namespace monitra::ctl {

namespace {

using wire::Message;
using Messages = std::deque<Message>;

platform::Failure readWhole(const std::string& path, std::string& bytes) {
  host::HostFiles files;
  std::unique_ptr<platform::ByteReader> file;
  platform::Failure failure = files.openForReading(path, file);
  std::string chunk;
  while (failure == platform::Failure::None) {
    failure = file->read(chunk);
    if (chunk.empty()) break;
    bytes += chunk;
  }
  return failure;
}

/// A recording, none if it can't be read at all; what is wrong goes to standard error.
struct Opened {
  std::unique_ptr<wire::Trace> trace;
  bool isWhole = false;

  const Messages& messages() const { return trace->decoder().messages(); }
};

Opened open(const std::string& file, const DecodeOptions& options) {
  std::string dump;
  const platform::Failure failure = readWhole(file, dump);
  if (failure != platform::Failure::None) {
    std::cerr << store::unreadableText(failure, file) << '\n';
    return {};
  }
  wire::WireNames names{options.data, options.clock};
  if (!options.pcb.empty()) names.pcb = options.pcb == "32" ? link::Pcb::V32 : link::Pcb::V4x;
  wire::ReadTrace read = wire::readVcd(dump, names);
  if (!read.fault.empty()) {
    std::cerr << printable(file + ": " + read.fault) << '\n';
    if (read.needsNames) std::cerr << "A két vezeték neve: --data NÉV --clock NÉV.\n";
  }
  return {std::move(read.trace), read.fault.empty()};
}

double seconds(wire::Time time) {
  return std::chrono::duration<double>(time).count();
}

/// "0.005000 s"
std::string momentText(wire::Time time) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%.6f s", seconds(time));
  return text.data();
}

/// What each message means; of a Setup also what differs from the one before it.
std::vector<std::string> meanings(const Messages& messages) {
  std::vector<std::string> texts;
  const Message* before = nullptr;
  for (const Message& message : messages) {
    std::string& text = texts.emplace_back(wire::meaning(message));
    if (message.kind != Message::Kind::Setup) continue;
    const std::string difference =
        before == nullptr ? "" : wire::setupDifference(before->bytes, message.bytes);
    if (!difference.empty()) text += " (az előző óta: " + difference + ")";
    before = &message;
  }
  return texts;
}

long shortPhases(const Messages& messages) {
  long count = 0;
  for (const Message& message : messages) count += message.shortPhases;
  return count;
}

void print(const Messages& messages) {
  const std::vector<std::string> texts = meanings(messages);
  std::array<long, 3> counts{};
  for (std::size_t i = 0; i < messages.size(); ++i) {
    const Message& message = messages[i];
    ++counts[static_cast<std::size_t>(message.kind)];
    std::cout << momentText(message.start) << "  " << wire::kindText(message.kind) << ": "
              << texts[i] << "\n    " << wire::timeText(message.end - message.start)
              << ", leghosszabb szünet " << wire::timeText(message.longestPause) << ", "
              << message.shortPhases << " rövid fázis\n";
  }
  std::cout << messages.size() << " üzenet: " << counts[0] << " Setup, " << counts[1] << " keret, "
            << counts[2] << " hibás; 1 ms-nál rövidebb fázis: " << shortPhases(messages) << ".\n";
}

const char* kindWord(Message::Kind kind) {
  if (kind == Message::Kind::Setup) return "setup";
  return kind == Message::Kind::Frame ? "frame" : "unknown";
}

void printJson(const Messages& messages) {
  const std::vector<std::string> texts = meanings(messages);
  Json all;
  all["messages"] = Json::array();
  for (std::size_t i = 0; i < messages.size(); ++i) {
    const Message& message = messages[i];
    all["messages"].push_back({{"kind", kindWord(message.kind)},
                               {"bytes", message.bytes},
                               {"start", seconds(message.start)},
                               {"end", seconds(message.end)},
                               {"text", texts[i]}});
  }
  all["short"] = shortPhases(messages);
  writeJson(all);
}

/// When a message of a pair begins, or null where it is missing.
Json startOf(const std::optional<std::size_t>& position, const Messages& messages) {
  return position ? Json(seconds(messages[*position].start)) : Json();
}

std::string startText(const std::optional<std::size_t>& position, const Messages& messages) {
  return position ? momentText(messages[*position].start) : "-";
}

/// Prints what differs. True if nothing does.
bool printDifferences(const Messages& first, const Messages& second, bool asJson) {
  Json list = Json::array();
  for (const wire::Pairing& pair : wire::compare(first, second)) {
    if (pair.same) continue;
    const std::string text = wire::differenceText(pair, first, second);
    list.push_back({{"first", startOf(pair.first, first)},
                    {"second", startOf(pair.second, second)},
                    {"text", text}});
    if (asJson) continue;
    std::cout << startText(pair.first, first) << " | " << startText(pair.second, second) << "  "
              << text << '\n';
  }
  if (asJson) {
    writeJson(Json{{"differences", list}});
  } else {
    std::cout << first.size() << " és " << second.size() << " üzenet, " << list.size()
              << " eltérés.\n";
  }
  return list.empty();
}

ExitCode usage(const std::string& fault) {
  std::cerr << "Hibás parancssor: " << fault << "\nSegítség: monitra-ctl --help\n";
  return usageError;
}

}  // namespace

ExitCode decode(const DecodeOptions& options) {
  if (options.data.empty() != options.clock.empty()) {
    return usage("a --data és a --clock csak együtt adható meg");
  }
  if (!options.data.empty() && options.data == options.clock) {
    return usage("a --data és a --clock nem lehet ugyanaz a vezeték");
  }
  const Opened first = open(options.file, options);
  if (options.other.empty()) {
    if (!first.trace) return fileError;
    options.json ? printJson(first.messages()) : print(first.messages());
    return first.isWhole ? done : fileError;
  }
  const Opened second = open(options.other, options);
  if (!first.trace || !second.trace) return fileError;
  const bool same = printDifferences(first.messages(), second.messages(), options.json);
  return same && first.isWhole && second.isWhole ? done : fileError;
}

}  // namespace monitra::ctl
