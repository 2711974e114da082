#include <cstdlib>
#include <gtest/gtest.h>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>
#include <tuple>

#include "support/image.h"
#include "support/process.h"
#include "support/scratch.h"

namespace monitra {
namespace {

const std::string ctl = MONITRA_BIN "/monitra-ctl";
const std::string examples = MONITRA_EXAMPLES;

const std::string setupFile =
    "91\r\n92\r\n93\r\n244\r\n245\r\n246\r\n24\r\n25\r\n26\r\n34\r\n35\r\n36\r\n 3\r\n4660\r\n7\r\n"
    "V5.0.3\r\n 5\r\n 0\r\n 3\r\nE\r\nF\r\nE\r\n";
const std::string setupBytes = "85 0 244 91 24 34 245 92 25 35 246 93 26 36 3 18 52 7 5 255";

void expect(const std::string& output, const std::string& part) {
  EXPECT_NE(output.find(part), std::string::npos) << output;
}

/// The JSON object behind whatever went to standard error.
nlohmann::json object(const std::string& output) {
  return nlohmann::json::parse(output.substr(output.find("{\n")));
}

struct Ctl : testing::Test {
  Ctl() { ::setenv("XDG_CONFIG_HOME", scratch.path("config").c_str(), 1); }

  std::string run(const std::vector<std::string>& arguments, int exitCode,
                  const std::string& input = {}) {
    std::string command = "printf " + support::quoted(input) + " | " + support::quoted(ctl);
    for (const std::string& argument : arguments) command += " " + support::quoted(argument);
    const support::Ran ran = support::shell(command);
    EXPECT_EQ(ran.exitCode, exitCode) << ran.output;
    return ran.output;
  }

  support::Scratch scratch;
  std::string file = scratch.write("a.pwm", setupFile);
};

TEST_F(Ctl, ShowGivesTheWholeStateAsJson) {
  const auto expected = nlohmann::json::parse(R"json({
    "title": "Vilor CNC Monitra V2.2.0  (a.pwm)", "edition": "Tarso", "Alapido": 3.3e-05,
    "Modositott": 0,
    "TFX": {"value": 91, "text": "91"}, "TFY": {"value": 92, "text": "92"},
    "TFZ": {"value": 93, "text": "93"}, "T1X": {"value": 244, "text": "244"},
    "T1Y": {"value": 245, "text": "245"}, "T1Z": {"value": 246, "text": "246"},
    "T2X": {"value": 24, "text": "24"}, "T2Y": {"value": 25, "text": "25"},
    "T2Z": {"value": 26, "text": "26"}, "T3X": {"value": 34, "text": "34"},
    "T3Y": {"value": 35, "text": "35"}, "T3Z": {"value": 36, "text": "36"},
    "Funkcio": {"value": 3, "text": "Motor tuning"}, "Ut": {"value": 4660, "text": "4660"},
    "Tures": {"value": 7, "text": "7"}, "Spm": "0.0125",
    "Xegesz": true, "Yegesz": false, "Zegesz": true,
    "VerFo": "5", "VerAl": "0", "VerRev": "3", "Verz": "V5.0.3",
    "Xttarto": "522.466 Hz (58.6%)", "Yttarto": "505.050 Hz (58.3%)",
    "Zttarto": "488.758 Hz (58.0%)",
    "Csucsf": ["333.000 S/s", "329.380 S/s", "325.839 S/s"],
    "Nhatar": ["124.192 S/s", "123.685 S/s", "123.183 S/s"],
    "Cim": "Gerjesztés: Natív PWM (30.30 kHz)", "lepes": " Tarso Firmware: fél lépés ",
    "Uthossz": "58.25", "boxes": []})json");
  EXPECT_EQ(object(run({"show", file, "--json"}, 0)), expected);
}

TEST_F(Ctl, ShowTellsWhatWentWrongAndTheStateItLeft) {
  auto state = object(run({"show", scratch.path("nincs.pwm"), "--json"}, 1));
  EXPECT_EQ(state["boxes"][0]["text"], "'nincs.pwm' nem létezik!\r\nAdjon meg létező File nevet!");
  EXPECT_EQ(state["boxes"][0]["style"], 16);
  EXPECT_EQ(state["title"], "Vilor CNC Monitra V2.2.0");
  expect(run({"show", scratch.write("rovid.pwm", "1\n2\n")}, 1), "2 sor van benne a 22");
  expect(run({"show", scratch.write("nagy.pwm", "999" + setupFile.substr(2))}, 0), "1 érték");
}

TEST_F(Ctl, EveryShippedExampleOpensCleanly) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(examples)) {
    if (entry.path().extension() != ".pwm") continue;
    ++files;
    const auto state = object(run({"show", entry.path(), "--json"}, 0));
    EXPECT_EQ(state["boxes"].size(), 0U) << entry.path();
  }
  EXPECT_GE(files, 3);
}

TEST_F(Ctl, UsageErrorsAreTwoAndFileErrorsOne) {
  const std::vector<std::vector<std::string>> usage{
      {},
      {"show"},
      {"nincs"},
      {"show", file, "több"},
      {"upload"},
      {"upload", file, "--port", "lpt1"},
      {"off", "x"},
      {"frame", "x", "--port", "sim"},
      {"frame", "l1", "x", "--port", "sim"},
      {"upload", file, "--port", "sim", "--lpt", "999"},
      {"upload", file, "--port", "sim", "--pcb", "33"},
      {"upload", file, "--port", "sim", "--vcd"},
      {"firmware"},
      {"firmware", "nincs"},
      {"firmware", "patch", file, file},
      {"firmware", "verify"}};
  for (const auto& arguments : usage) {
    expect(run(arguments, 2), "Hibás parancssor");
  }
  run({"--help"}, 0);
  run({"upload", scratch.path("nincs.pwm"), "--port", "sim", "--yes"}, 1);
  run({"upload", scratch.write("rovid.pwm", "91\r\n"), "--port", "sim", "--yes"}, 1);
  run({"upload", file, "--port", "sim", "--yes", "--vcd", "/nincs/ilyen.vcd"}, 1);
  run({"upload", file, "--port", "sim", "--yes", "--vcd", file}, 1);
  EXPECT_EQ(scratch.read("a.pwm"), setupFile) << "not overwritten by its own record";
  expect(run({"show", ""}, 1), "nem létezik!");
  expect(run({"show", file, "--json=talán"}, 2), "Hibás parancssor");
  const std::string vilor = "V?.?.?\r\n 2\r\n";
  std::string old = setupFile;
  old.replace(old.find("V5.0.3\r\n 5\r\n"), 12, vilor);
  expect(run({"upload", scratch.write("regi.pwm", old), "--port", "sim", "--yes"}, 1), "Vilor");
}

std::string listed(const std::string& bytes) {
  std::istringstream words(bytes);
  std::ostringstream lines;
  int position = 0;
  for (int byte = 0; words >> byte; ++position) {
    lines << std::setw(4) << position << ": " << std::setw(3) << byte << '\n';
  }
  return lines.str();
}

TEST_F(Ctl, UploadAsksAndReportsWhatTheControllerReceived) {
  const std::string sent = run({"upload", file, "--port", "sim"}, 0, "igen\n");
  expect(sent, "Kész a vezérlő az adatok fogadására?");
  expect(sent, "A feltöltés kész!");
  expect(sent, "480 írás");
  expect(sent, "(PCB V4.x) 20 bájtot kapott:\n" + listed(setupBytes));
  expect(sent, "Y tengely: T1=245, TF=92, T2=25, T3=35, fél lépés");
  for (const std::string answer : {"n\n", "nem\n", "inkább ne\n", "\n", ""}) {
    const std::string refused =
        run({"upload", file, "--port", "sim"}, answer.empty() ? 2 : 0, answer);
    expect(refused, "Nem ment ki semmi.");
    EXPECT_EQ(refused.find("bájtot kapott"), std::string::npos);
  }
}

TEST_F(Ctl, FramesAskAndGoOutOneByOne) {
  const auto frame = [](const std::string& bytes) {
    return "(PCB V4.x) 3 bájtot kapott:\n" + listed(bytes);
  };
  const std::string off = run({"off", "--port", "sim"}, 0, "i\n");
  expect(off, "Kikapcsoló keretek a motoroknak: 99 0 16, 110 0 16, 120 0 16.");
  for (const char* const bytes : {"99 0 16", "110 0 16", "120 0 16"}) expect(off, frame(bytes));
  const std::tuple<const char*, const char*, const char*> frames[] = {{"x", "l1", "99 0 1"},
                                                                      {"y", "l2", "110 0 2"},
                                                                      {"z", "l3", "120 0 4"},
                                                                      {"x", "l4", "99 0 8"},
                                                                      {"y", "ki", "110 0 16"}};
  for (const auto& [motor, line, bytes] : frames) {
    const std::string sent = run({"frame", motor, line, "--port", "sim", "--yes"}, 0);
    expect(sent, std::string("): ") + bytes + ".");
    expect(sent, frame(bytes));
    EXPECT_EQ(sent.find("kapott"), sent.rfind("kapott")) << "one frame";
  }
  for (const std::string answer : {"n\n", ""}) {
    const std::string refused = run({"off", "--port", "sim"}, answer.empty() ? 2 : 0, answer);
    expect(refused, "Nem ment ki semmi.");
    EXPECT_EQ(refused.find("kapott"), std::string::npos);
  }
}

TEST_F(Ctl, WithoutAPortNothingIsAskedAndTheCauseIsAPortError) {
  const support::Ran listed = support::shell(support::quoted(ctl) + " ports --json");
  const auto found = object(listed.output);
  if (!found["ports"].empty()) GTEST_SKIP() << "this PC has a port, which a test must not touch";
  EXPECT_EQ(listed.exitCode, 3);
  EXPECT_EQ(run({"ports"}, 3).find(found["reason"]), 0U);
  for (const auto& command : {std::vector<std::string>{"off"},
                              {"frame", "x", "ki"},
                              {"upload", file},
                              {"upload", file, "--port", "kernel"}}) {
    const std::string told = run(command, 3, "igen\n");
    EXPECT_EQ(told.find(found["reason"]), 0U) << told;
    EXPECT_EQ(told.find("[I/n]"), std::string::npos);
  }
  expect(run({"upload", scratch.path("nincs.pwm")}, 1), "nem létezik");
}

TEST_F(Ctl, UploadUsesTheBoardAndPortOfTheProgramUnlessToldOtherwise) {
  std::filesystem::create_directories(scratch.path("config/monitra"));
  scratch.write("config/monitra/Monitra Setup.json",
                "{\"Setup\": {\"PCB\": \"32\", \"LPT\": \" 1\"}}");
  const std::string stored = run({"upload", file, "--port", "sim", "--yes"}, 0);
  expect(stored, "&H278, PCB V3.2 (adat: D5_YDir_SorosAdat, órajel: D2_ZDir_SorosOrajel)");
  expect(stored, "(PCB V3.2) 20 bájtot kapott:");
  const std::string told =
      run({"upload", file, "--port", "sim", "--yes", "--pcb", "40", "--lpt", "3BC"}, 0);
  expect(told, "&H3BC, PCB V4.x");
}

TEST_F(Ctl, NoPhaseOfAnUploadIsShortByItsRecordedTimes) {
  run({"upload", file, "--port", "sim", "--yes", "--vcd", scratch.path("a.vcd")}, 0);
  std::istringstream dump(scratch.read("a.vcd"));
  std::vector<long> times;  // in microseconds
  for (std::string line; std::getline(dump, line);) {
    if (line[0] == '#' && line.size() > 1) times.push_back(std::stol(line.substr(1)));
  }
  // The state at the start, the line put to idle; then 480 writes and the end of the last wait.
  ASSERT_GT(times.size(), 481U);
  times.erase(times.begin(), times.end() - 481);
  for (std::size_t i = 1; i < times.size(); ++i) EXPECT_GE(times[i] - times[i - 1], 1000) << i;
}

TEST_F(Ctl, AnIndependentDecoderReadsTheTwentyBytesFromTheDump) {
  if (support::shell("sigrok-cli --version").exitCode != 0) {
    GTEST_SKIP() << "sigrok-cli is not installed";
  }
  const struct {
    const char *pcb, *clock;
  } boards[] = {{"40", "D7_ZDir_SorosOrajel"}, {"32", "D2_ZDir_SorosOrajel"}};
  for (const auto& board : boards) {
    const std::string dump = scratch.path(std::string(board.pcb) + ".vcd");
    run({"upload", file, "--port", "sim", "--yes", "--pcb", board.pcb, "--vcd", dump}, 0);
    const support::Ran decoder = support::shell(
        "sigrok-cli -i " + support::quoted(dump) + " -P spi:clk=" + board.clock +
        ":mosi=D5_YDir_SorosAdat:bitorder=lsb-first:cpol=0:cpha=0:wordsize=8 -A spi=mosi-data");
    ASSERT_EQ(decoder.exitCode, 0) << decoder.output;
    std::string decoded;
    std::istringstream lines(decoder.output);
    for (std::string word; lines >> word;) {
      if (word.back() == ':') continue;
      decoded += (decoded.empty() ? "" : " ") + std::to_string(std::stoi(word, nullptr, 16));
    }
    EXPECT_EQ(decoded, setupBytes);
  }
}

/// An image of 32 KiB whose bytes are all but random, with the block in its middle.
std::string image(const support::Block& block) {
  std::string text;
  for (int address = 0; address < 0x8000; address += 16) {
    if (address == 0x4200) {
      text += block.text();
      address += 32;
      continue;
    }
    std::vector<int> data;
    for (int n = 0; n < 16; ++n) data.push_back((address * 7 + n * 31 + address / 256) & 0xFF);
    text += support::record(address, data) + "\n";
  }
  return text + support::closingRecord + "\n";
}

TEST_F(Ctl, FirmwareShowGivesTheBlockAndNamesWhatIsWrongByLine) {
  support::Block block;
  const auto state =
      object(run({"firmware", "show", scratch.write("fw.hex", image(block)), "--json"}, 0));
  EXPECT_EQ(state["title"], "Vilor CNC Monitra V2.2.0   (fw.hex)");
  EXPECT_EQ(state["T2Y"], nlohmann::json({{"value", 37}, {"text", "37"}}));
  EXPECT_EQ(state["Ut"]["value"], 258);
  EXPECT_EQ(state["Verz"], "V5.0.3");
  EXPECT_EQ(state["Vegallas"], "Végállások állapota: felvett");
  EXPECT_EQ(state["FirmwareNev"], "fw.hex");
  block.line4210[12] = 'x';
  const std::string bad = scratch.write("rossz.hex", image(block));
  for (const char* command : {"show", "verify"}) {
    expect(run({"firmware", command, bad}, 1),
           bad + ", 1058. sor: 13. karakter nem hexadecimális számjegy: x\n");
  }
  expect(run({"firmware", "show", bad}, 1), "Error in File funktions ! Error Code: 13");
  expect(run({"firmware", "verify", scratch.path("fw.hex")}, 0),
         "2049 rekord, hibátlan; paraméterblokk: 1057. sortól.");
  expect(run({"firmware", "verify", scratch.path("nincs.hex")}, 1), "nincs ilyen fájl");
  expect(run({"firmware", "show", scratch.path("nincs.hex")}, 1), "nem található !");
}

TEST_F(Ctl, FirmwarePatchDiffersFromItsSourceInThePatchedBytesOnly) {
  const std::string source = image({});
  const std::string firmware = scratch.write("fw.hex", source);
  const std::string target = scratch.path("uj.hex");
  EXPECT_EQ(run({"firmware", "patch", firmware, file, target}, 0),
            "Elkészült: " + target +
                " (V5.0.3)\n  TFX: 32 -> 91\n  TFY: 36 -> 92\n  TFZ: 40 -> 93\n  T1X: 31 -> 244\n"
                "  T1Y: 35 -> 245\n  T1Z: 39 -> 246\n  T2X: 33 -> 24\n  T2Y: 37 -> 25\n"
                "  T2Z: 41 -> 26\n"
                "  T3Y: 38 -> 35\n  T3Z: 42 -> 36\n  Funkcio: 2 -> 3\n  Ut: 258 -> 4660\n"
                "  Tures: 9 -> 7\nAz egész léptetés pipái nem kerülnek a firmware-be.\n");
  EXPECT_EQ(scratch.read("fw.hex"), source);
  if (support::shell("srec_cat --version").exitCode != 0) GTEST_SKIP() << "no srecord here";
  std::string before;
  std::string after;
  for (const auto& [name, bytes] : {std::pair("fw", &before), std::pair("uj", &after)}) {
    const std::string path = scratch.path(name);
    const support::Ran reader = support::shell("srec_cat " + support::quoted(path + ".hex") +
                                               " -intel -o " + support::quoted(path) + " -binary");
    ASSERT_EQ(reader.exitCode, 0) << reader.output;
    *bytes = scratch.read(name);
  }
  constexpr std::size_t firstPatched = 0x4202;
  std::string expected = before;
  std::istringstream message(setupBytes.substr(setupBytes.find("244")));
  for (std::size_t word = 0; word < 16; ++word) {
    int byte = 0;
    message >> byte;
    expected[firstPatched + 2 * word] = static_cast<char>(byte);
    expected[firstPatched + 2 * word + 1] = 0;
  }
  ASSERT_EQ(before.size(), 0x8000U);
  EXPECT_TRUE(after == expected);
}

TEST_F(Ctl, FirmwarePatchRefusesWhatCouldHarmAndSaysWhatIsLeft) {
  const std::string source = image({});
  const std::string firmware = scratch.write("fw.hex", source);
  const std::string target = scratch.path("uj.hex");
  EXPECT_EQ(run({"firmware", "patch", firmware, file, firmware}, 1),
            "'fw.hex' már létezik!\nMentse más néven!\n");
  expect(run({"firmware", "patch", firmware, scratch.write("rovid.pwm", "1\r\n"), target}, 1),
         "1 sor van benne a 22 helyett");
  EXPECT_EQ(run({"firmware", "patch", firmware, file, scratch.path()}, 1),
            "Drive Problem ! No Write in Drive.\n");
  support::Block block;
  block.line4210 = support::record(0x4210, std::vector<int>(32, 1));
  const std::string longer = scratch.write("hosszu.hex", image(block));
  const std::string refused = run({"firmware", "patch", longer, file, target}, 1);
  expect(refused, longer + ", 1058. sor: itt a paraméterblokk 4210 című rekordja kellene");
  expect(refused, "A paraméterblokk nem ép, vagy nem a helyén van. A másolat nem készült el.");
  block = {};
  block.line4220 = support::wordRecord(0x4220, {9, 0, '2', 0, '0', 0, '0', 0});
  const std::string old = scratch.write("regi.hex", image(block));
  std::string five = setupFile;
  five.replace(five.find(" 3\r\n"), 2, " 5");
  expect(run({"firmware", "patch", old, scratch.write("ot.pwm", five), target}, 1),
         "Funkció törölve.\nA Setupnak nem minden értéke érvényes ebben a firmware-ben. A másolat");
  EXPECT_FALSE(std::filesystem::exists(target));

  const support::Ran full = support::shell("ulimit -f 64; " + support::quoted(ctl) +
                                           " firmware patch " + support::quoted(firmware) + " " +
                                           support::quoted(file) + " " + support::quoted(target));
  EXPECT_EQ(full.exitCode, 1);
  expect(full.output, "Eror in File funktions ! Error Code: 61");
  expect(full.output, "félbemaradt");
  EXPECT_EQ(scratch.read("uj.hex").size(), 32768U) << "64 blocks, all that the limit allows";
  EXPECT_EQ(scratch.read("fw.hex") + scratch.read("a.pwm"), source + setupFile);

  const std::string told = run({"firmware", "patch", old, file, scratch.path("regi2.hex")}, 0);
  expect(told, "a Setup alapideje 33 us, a firmware-é 100 us");
  EXPECT_EQ(told.find("A forrás hibás"), std::string::npos);
  block.line4200.replace(41, 2, "00");
  block.line4220 = support::wordRecord(0x4220, {9, 0, 27, 0, '0', 0, '0', 0});
  const std::string bad = scratch.write("rossz.hex", image(block));
  const std::string warned = run({"firmware", "patch", bad, file, scratch.path("rossz2.hex")}, 0);
  expect(warned, "1057. sor: az ellenőrző összeg hibás");
  expect(warned, "(V?.0.0)");
  expect(warned, "A forrás hibás, a másolat is az lehet");
  std::string page;
  for (int line = 0; line < 25; ++line) page += "<br>\n";
  expect(run({"firmware", "verify", scratch.write("lap.hex", page)}, 1),
         "25. sor: nem kettősponttal");
  expect(run({"firmware", "show", scratch.path("lap.hex")}, 1), "... és még 5 hiba.");
}

}  // namespace
}  // namespace monitra
