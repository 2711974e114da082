#include <cstdlib>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

#include "support/image.h"
#include "support/same.h"
#include "support/scratch.h"

namespace monitra {
namespace {

using namespace support;

const std::string setupFile =
    "91\r\n92\r\n93\r\n244\r\n245\r\n246\r\n24\r\n25\r\n26\r\n34\r\n35\r\n36\r\n 3\r\n4660\r\n7\r\n"
    "V5.0.3\r\n 5\r\n 0\r\n 3\r\nE\r\nF\r\nE\r\n";
const std::string setupBytes = "55 00 f4 5b 18 22 f5 5c 19 23 f6 5d 1a 24 03 12 34 07 05 ff";

/// An image of 32 KiB whose bytes are all but random, with the block in its middle.
std::string image(const Block& block) {
  std::string text;
  for (int address = 0; address < 0x8000; address += 16) {
    if (address == 0x4200) {
      text += block.text();
      address += 32;
      continue;
    }
    std::vector<int> data;
    for (int n = 0; n < 16; ++n) data.push_back((address * 7 + n * 31 + address / 256) & 0xFF);
    text += record(address, data) + "\n";
  }
  return text + closingRecord + "\n";
}

struct Ctl : testing::Test {
  Ctl() {
    ::setenv("XDG_CONFIG_HOME", scratch.path("config").c_str(), 1);
    ::setenv("EXAMPLES", MONITRA_EXAMPLES, 1);
    scratch.write("a.pwm", setupFile);
    scratch.write("fw.hex", image({}));
  }

  /// In the test's folder, with nobody at the terminal.
  Ran run(const std::string& command) const {
    return shell("cd " + quoted(scratch.path()) + "; PATH=" + quoted(MONITRA_BIN) + ":$PATH; { " +
                 command + "\n} </dev/null");
  }

  Scratch scratch;
};

/// The lines of a text without the blanks at their ends.
Journal linesOf(const std::string& text) {
  Journal lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line.substr(0, line.find_last_not_of(' ') + 1));
  }
  return lines;
}

/// The transcript has a command behind each "$", then all that it prints, and its exit code in
/// brackets.
TEST_F(Ctl, GoesByTheTranscript) {
  Block block;
  scratch.write("elso.hex", block.text() + closingRecord + "\n");
  block.line4210[12] = 'x';
  scratch.write("rossz.hex", image(block));
  block = {};
  block.line4210 = record(0x4210, std::vector<int>(32, 1));
  scratch.write("hosszu.hex", image(block));
  block = {};
  block.line4220 = wordRecord(0x4220, {9, 0, '2', 0, '0', 0, '0', 0});
  scratch.write("regi.hex", image(block));
  block.line4200.replace(41, 2, "00");
  block.line4220 = wordRecord(0x4220, {9, 0, 27, 0, '0', 0, '0', 0});
  scratch.write("osszeg.hex", image(block));

  std::ifstream transcript(MONITRA_TRANSCRIPT);
  std::string command;
  Journal expected;
  int commands = 0;
  for (std::string line; std::getline(transcript, line);) {
    if (line.starts_with("$ ")) {
      command = line.substr(2);
      expected.clear();
      continue;
    }
    expected.push_back(line);
    if (line.size() != 3 || line.front() != '[') continue;
    const Ran ran = run(command);
    Journal seen = linesOf(ran.output);
    seen.push_back("[" + std::to_string(ran.exitCode) + "]");
    EXPECT_TRUE(same(seen, expected)) << command;
    ++commands;
  }
  EXPECT_GT(commands, 40);
}

TEST_F(Ctl, WithoutAPortNothingIsAskedAndTheCauseIsAPortError) {
  const Ran listed = run("monitra-ctl ports --json");
  const auto found = nlohmann::json::parse(listed.output);
  if (!found["ports"].empty()) GTEST_SKIP() << "this PC has a port, which a test must not touch";
  EXPECT_EQ(listed.exitCode, 3);
  const std::string told = run("monitra-ctl ports").output;
  EXPECT_EQ(told.find(found["reason"]), 0U);
  for (const char* const command :
       {"ports", "off", "frame x ki", "upload a.pwm", "upload a.pwm --port kernel"}) {
    const Ran ran = run(std::string("echo igen | monitra-ctl ") + command);
    EXPECT_EQ(ran.exitCode, 3) << command;
    EXPECT_EQ(ran.output, told) << command;
  }
  EXPECT_EQ(run("monitra-ctl upload nincs.pwm").exitCode, 1);
}

TEST_F(Ctl, TheRecordOfAnUploadHoldsItsBytesAndTimesOnTheChosenPortAndBoard) {
  std::filesystem::create_directories(scratch.path("config/monitra"));
  scratch.write("config/monitra/Monitra Setup.json",
                "{\"Setup\": {\"PCB\": \"32\", \"LPT\": \" 1\"}}");
  const struct {
    std::string options, port, clock;
  } rows[] = {{"", "&H278, PCB V3.2 (adat: D5_YDir_SorosAdat, órajel: D2_ZDir_SorosOrajel)", "D2"},
              {" --pcb 40 --lpt 3BC", "&H3BC, PCB V4.x", "D7"}};
  const bool canDecode = run("sigrok-cli --version").exitCode == 0;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.port);
    const std::string sent =
        run("monitra-ctl upload a.pwm --port sim --yes --force --vcd a.vcd" + row.options).output;
    EXPECT_NE(sent.find(row.port), std::string::npos) << sent;
    EXPECT_EQ(run("grep -c '^#' a.vcd").output, "484\n")
        << "the start, the first state, the line to idle, the writes, the end";
    const double least =
        std::stod(run("grep '^#' a.vcd | tail -n 481 | tr -d '#' |"
                      " awk 'NR > 1 { print $1 - last } { last = $1 }' | sort -n | head -n 1")
                      .output);
    EXPECT_GE(least, 1000);
    const std::size_t told = sent.find("legalább ") + std::string("legalább ").size();
    EXPECT_NEAR(std::stod(sent.substr(told)) * 1000, least, 500) << "a phase, not two of them";
    if (!canDecode) continue;
    const Ran decoder = run("sigrok-cli -i a.vcd -P spi:clk=" + row.clock +
                            "_ZDir_SorosOrajel:mosi=D5_YDir_SorosAdat"
                            ":bitorder=lsb-first:cpol=0:cpha=0:wordsize=8 -A spi=mosi-data |"
                            " sed 's/.*: //' | tr 'A-F\\n' 'a-f '");
    EXPECT_EQ(decoder.output, setupBytes + " ");
  }
  if (!canDecode) GTEST_SKIP() << "sigrok-cli is not installed";
}

}  // namespace
}  // namespace monitra
