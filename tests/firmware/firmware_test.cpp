#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "firmware/parameter_block.h"
#include "support/image.h"
#include "support/program.h"

namespace monitra::firmware {
namespace {

using platform::Failure;
using support::Block;
using support::closingRecord;
using support::Journal;
using support::lower;
using support::wordRecord;

const std::string filter = " Firmware File (*.hex)|*.hex|Minden File (*.*)|*.* ";
const std::string readError = "box 0: Error in File funktions ! Error Code:";
const std::string writeError = "box 0: Eror in File funktions ! Error Code:";
const std::string driveProblem = "box 0: Drive Problem ! No Write in Drive.";
const std::string title = "Vilor CNC Monitra V2.2.0";

TEST(ParameterBlock, WritesBytesAndChecksumsInTwoDigits) {
  EXPECT_EQ(KetHex(0) + KetHex(10) + KetHex(200) + KetHex(255), "000AC8FF");
  EXPECT_EQ(checksum("80F010"), 0x80);
  EXPECT_EQ(checksum("80f090"), 0);
  timing::Setup setup;
  setup.timing = {91, 91, 91, 244, 244, 244, 24, 24, 24, 24, 24, 24};
  setup.Ut = 1000;
  setup.Tures = 1;
  const auto patched = [&setup](int index, const std::string& source) {
    return patchedRecord(index, source, setup).value_or("none");
  };
  EXPECT_EQ(patched(0, wordRecord(0x4200, {0, 1, 2, 3, 4, 5, 6, 7})),
            ":104200000000F4005B0018001800F4005B001800C8");
  EXPECT_EQ(patched(1, wordRecord(0x4210, {9, 9, 9, 9, 9, 9, 9, 9})),
            ":104210001800F4005B001800180000000300E8001C");
  EXPECT_EQ(patched(2, wordRecord(0x4220, {9, 0, 0x35, 0, 0x30, 0, 0x33, 0})),
            ":1042200001000000350000003000000033000000F5");
  EXPECT_EQ(patched(0, lower(wordRecord(0x4200, {0xC8, 1, 2, 3, 4, 5, 6, 7}))).substr(41), "00")
      << "a sum that is a multiple of 256";
  setup.Funkcio = 5;
  setup.Ut = 65535;
  EXPECT_EQ(patched(1, wordRecord(0x4210, {})), "none");
  EXPECT_EQ(patched(1, wordRecord(0x4210, {9, 9, 9, 9, 9, 9, 9, 9}, 0xEE)).substr(29, 12),
            "0500FF00FF00");
}

struct Firmware : testing::Test, support::Program {
  Firmware() {
    lap.Form_Load();
    journal.clear();
  }

  ReadResult read(const std::string& bytes) {
    dialog.path = scratch.write("fw.hex", bytes);
    journal.clear();
    return lap.openFirmware().read;
  }
  Failure save(const std::string& path) {
    dialog.path = path;
    journal.clear();
    return lap.saveFirmware();
  }
  std::string spins() const {
    std::string text;
    for (int i = 0; i < timing::timingFields; ++i) {
      text += std::to_string(lap.setup.FolLe[i].Value) + " ";
    }
    return text + std::to_string(lap.setup.Funkcio.ListIndex) + " " +
           std::to_string(lap.setup.Utfolle.Value) + " " +
           std::to_string(lap.setup.Turesfolle.Value);
  }

  const std::string startSpins = spins();
  const Block block;
  const std::string image = ":020000040000FA\n" + block.text() + closingRecord + "\n";
};

TEST_F(Firmware, ReadingSetsTheControlsInTheOrderOfTheBlock) {
  lap.setup.Funkcio.ListIndex = 4;
  lap.setup.Yegesz.Checked = true;
  lap.setup.Spm.Text = "2";
  const auto note = [this](const std::string& name, auto& property) {
    property.observe([this, name, &property] { journal.push_back(name + property.get()); });
  };
  const auto noteNumber = [this](const std::string& name, auto& property) {
    property.observe([this, name, &property] {
      journal.push_back(name + "=" + std::to_string(property.get()));
    });
  };
  for (int i = 0; i < timing::timingFields; ++i) {
    noteNumber(std::to_string(i), lap.setup.FolLe[i].Value);
  }
  noteNumber("mark", lap.setup.MBTallando.Checked);
  noteNumber("Funkcio", lap.setup.Funkcio.ListIndex);
  noteNumber("Utfolle", lap.setup.Utfolle.Value);
  noteNumber("Turesfolle", lap.setup.Turesfolle.Value);
  note("", lap.setup.Verz.Caption);
  note("", lap.setup.Cim.Caption);
  note("", lap.setup.Vegallas.Caption);
  note("", lap.form.Caption);
  Block old;
  old.line4220 = wordRecord(0x4220, {7, 0, '3', 0, '1', 0, '2', 0});
  EXPECT_EQ(read(lower(old.text())).failure, Failure::None);
  EXPECT_EQ(journal, (Journal{"mark=0",       "open" + filter,
                              "Funkcio=0",    "Gerjesztés: Natív PWM (10 kHz)",
                              "V3.1.2",       "Végállások állapota: felvett",
                              "3=31",         "0=32",
                              "6=33",         "9=34",
                              "4=35",         "1=36",
                              "7=37",         "10=38",
                              "5=39",         "2=40",
                              "8=41",         "11=42",
                              "Funkcio=2",    "Utfolle=258",
                              "Turesfolle=7", title + "   (fw.hex)",
                              "mark=1"}));
  EXPECT_EQ(lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev, "312");
  EXPECT_EQ(lap.kozos.FirmwareNev, "fw.hex");
  EXPECT_EQ(lap.kozos.FirmwareUtvonal, scratch.path("fw.hex"));
  EXPECT_EQ(lap.kozos.Modositott, 0);
  EXPECT_EQ(lap.setup.T2[7].Text.get() + lap.setup.Ut.Text.get() + lap.setup.Tures.Text.get(),
            "372587");
  EXPECT_TRUE(!lap.setup.Xegesz.Checked && lap.setup.Yegesz.Checked && !lap.setup.Zegesz.Checked);
  EXPECT_EQ(lap.setup.Spm.Text.get(), "2");
  EXPECT_EQ(lap.setup.Xttarto.Caption.get(), "149.253 Hz (50.7%)") << "with the new base time";
}

TEST_F(Firmware, ReadingDecidesByTheVersionDigitAndTheLimitByte) {
  lap.setup.MBTValtozo.click();
  struct Case {
    int digit, limits, mode;
    double base;
    bool tarso;
    int funkcio;
    Journal boxes;
  };
  const std::string refused =
      "box 48: Ez a funkció (Forszírozott Impulzus figyelés!) csak a Tarso Firmware-ben létezik!"
      "\r\nFunkció törölve.";
  for (const Case& c :
       {Case{'1', 128, 5, 0.0001, false, 0, {refused}}, Case{'2', 129, 4, 0.0001, false, 4, {}},
        Case{'3', 0, 5, 0.0001, true, 5, {}}, Case{'4', 255, 5, 3.3e-05, true, 5, {}},
        Case{0xE1, 1, 0, 0.0001, false, 0, {}}}) {
    Block b;
    // Neither types nor the addresses behind the first record are looked at; a comma ends a line.
    b.line4200 = wordRecord(0x4200, {c.limits, 1, 2, 3, 4, 5, 6, 7}).replace(7, 2, "09");
    b.line4210 = wordRecord(0x1234, {38, 39, 40, 41, 42, c.mode, 1, 0});
    b.line4220 = wordRecord(0x5678, {c.digit, 0, 0, 0, 0, 0, 0, 0});
    const std::string versions = wordRecord(0x4220, {0, 0, c.digit, 0, '0', 0, '9', 0});
    EXPECT_EQ(read("\r\nx,  " + versions + ",\r  " + b.text()).failure, Failure::None);
    EXPECT_EQ(lap.setup.Turesfolle.Value, c.digit);
    EXPECT_FALSE(lap.setup.MBTallando.Checked);
    Journal expected{"open" + filter};
    expected.insert(expected.end(), c.boxes.begin(), c.boxes.end());
    EXPECT_EQ(journal, expected);
    EXPECT_EQ(lap.kozos.Alapido, c.base);
    EXPECT_EQ(lap.setup.MBKTarso.Checked, c.tarso);
    EXPECT_EQ(lap.setup.Funkcio.ListIndex, c.funkcio);
    EXPECT_EQ(lap.setup.Vegallas.Caption.get(),
              c.limits > 128 ? "Végállások állapota: felvett" : "Végálások állapota: üres");
  }
  EXPECT_EQ(lap.setup.Verz.Caption.get(), "Vá.0.9");
}

TEST_F(Firmware, ValuesOutsideTheirRangeTakeTheNearestLimit) {
  lap.setup.FolLe[timing::T1X].Value = 1;
  lap.setup.T1[timing::T1X].Text = "1.4";
  for (const char* typed : {"1", "1.3"}) lap.setup.Ut.type(typed);
  Block b;
  b.line4200 = wordRecord(0x4200, {0, 0, 0, 255, 4, 5, 6, 7});
  b.line4210 = wordRecord(0x4210, {38, 39, 40, 41, 42, 0xFF, 0, 0});
  EXPECT_EQ(read(b.text()).adjusted, 4);
  EXPECT_EQ(spins(), "1 6 40 1 5 39 255 7 41 4 38 42 5 1 9");
  EXPECT_EQ(lap.setup.T1[timing::T1X].Text.get() + lap.setup.Ut.Text.get(), "11");
}

TEST_F(Firmware, AFailedReadingKeepsWhatCameBeforeAndTellsWhy) {
  Block b;
  b.line4220 = wordRecord(0x4220, {9, 0, '2', 0, '1', 0, '0', 0});
  const std::string version = b.line4220 + "\n";
  const std::string start = b.line4200 + "\n";
  std::string badDigit = b.line4210;
  badDigit[39] = 'G';
  std::string badHighByte = b.line4200;
  badHighByte[12] = ' ';
  const std::string none = startSpins;
  const std::string first = "32 36 91 31 35 244 33 37 24 34 24 24 0 1000 1";
  const std::string second = "32 36 40 31 35 39 33 37 41 34 38 42 2 258 1";
  struct Case {
    std::string bytes, code;
    bool versionRead;
    std::string spins;
  };
  for (const Case& c :
       {Case{"<html>, 4220\n<body>", " 62", false, none},
        Case{std::string(1 << 20, ':'), " 62", false, none},
        Case{std::string((16 << 20) + 1, ':'), " 14", false, none},
        Case{start + b.line4210, " 62", false, none},
        Case{b.line4220.substr(0, 42) + "\n" + b.text(), " 13", false, none},
        Case{version, " 62", true, none},
        Case{version + badHighByte + "\n" + b.text(), " 13", true, none},
        Case{version + "x" + start.substr(1) + b.text(), " 13", true, none},
        Case{version + b.line4200, " 62", true, first},
        Case{version + start + "\n" + b.text(), " 13", true, first},
        Case{version + start + badDigit + "\n", " 13", true, first},
        Case{start + b.line4210 + "\n:0042200000\n" + version, " 13", false, none},
        Case{version + start + b.line4210 + "\n:0042300000", " 13", true, second}}) {
    support::Program fresh;
    fresh.lap.Form_Load();
    lap.setup.setSpinValues(fresh.lap.setup.spinValues());
    lap.setup.MBKTarso.click();
    lap.setup.Funkcio.ListIndex = 2;
    read(c.bytes);
    const std::string head = c.bytes.substr(0, 200);
    EXPECT_EQ(journal, (Journal{"open" + filter, readError + c.code})) << head;
    EXPECT_EQ(spins(), c.spins) << head;
    EXPECT_EQ(lap.setup.Verz.Caption.get(), c.versionRead ? "V2.1.0" : "V?.?.?") << head;
    EXPECT_EQ(lap.kozos.Alapido, c.versionRead ? 0.0001 : 3.3e-05) << head;
    EXPECT_EQ(lap.setup.MBKVilor.Checked, c.versionRead) << head;
    EXPECT_EQ(lap.form.Caption.get(), title);
    EXPECT_TRUE(lap.setup.MBTallando.Checked);
    EXPECT_EQ(lap.kozos.FirmwareNev, "fw.hex");
    EXPECT_EQ(lap.kozos.FirmwareUtvonal, scratch.path("fw.hex"));
  }
  files.openingFails = Failure::PathFileAccess;
  read(image);
  EXPECT_EQ(journal.back(), driveProblem);
  EXPECT_EQ(lap.Esemeny.Caption.get(), "fw.hex: nem olvasható, mert mappa, vagy nincs hozzá jog.");
  files.openingFails = Failure::None;
  for (const int reads : {0, 1}) {
    files.readsThatSucceed = reads;
    read(image);
    EXPECT_EQ(journal.back(), readError + " 57");
    EXPECT_EQ(lap.setup.Verz.Caption.get(), reads == 0 ? "V2.1.0" : "V5.0.3");
  }
  EXPECT_EQ(spins(), "32 36 40 31 35 39 33 37 41 34 38 42 0 258 1") << "the second pass failed";
}

TEST_F(Firmware, NoFileChangesNothing) {
  read(image);
  const std::string opened = lap.form.Caption;
  dialog.path.reset();
  journal.clear();
  lap.setup.Funkcio.ListIndex = 2;
  lap.setup.FolLe[0].pressUp();
  const std::string before = spins();
  lap.openFirmware();
  EXPECT_EQ(journal, Journal{"open" + filter}) << "cancelled";
  journal.clear();
  dialog.path = scratch.path("nincs.hex");
  lap.openFirmware();
  EXPECT_EQ(journal, (Journal{"open" + filter, "box 16: 'nincs.hex' nem található !"}));
  EXPECT_EQ(spins(), before);
  EXPECT_EQ(lap.kozos.FirmwareNev + lap.kozos.FirmwareUtvonal, "fw.hex" + scratch.path("fw.hex"));
  EXPECT_EQ(lap.form.Caption.get(), opened);
  EXPECT_TRUE(lap.setup.MBTallando.Checked);
  EXPECT_EQ(lap.kozos.Modositott, 0) << "however it ended";
}

TEST_F(Firmware, PatchingReplacesThreeRecordsAndCopiesTheRestByteByByte) {
  const std::string before = ":020000040000fa\n\r\n; \xE1rv\xEDz\r  a, b\n:10 4200\n";
  const std::string after = ":104240000000\nutols\xF3 ";
  // Neither types nor the addresses behind the first record are looked at.
  const std::string source = before +
                             lower(std::string(block.line4200).replace(7, 2, "09") + "\n" +
                                   std::string(block.line4210).replace(3, 6, "AB1001") + "\n" +
                                   std::string(block.line4220).replace(3, 6, "CD2002") + "\n") +
                             after;
  ASSERT_EQ(read(block.line4220 + "\n" + source).failure, Failure::None);
  scratch.write("fw.hex", source);
  lap.setup.setSpinValues({{91, 92, 93, 244, 245, 246, 24, 25, 26, 34, 35, 36}, 5, 1000, 255});
  lap.setup.TF[0].Text = "17";
  lap.setup.Ut.type("1000.4");
  lap.kozos.Modositott = -1;
  EXPECT_EQ(save(scratch.path("masolat.hex")), Failure::None);
  EXPECT_EQ(journal, Journal{"save" + filter + "Modositott.hex"});
  EXPECT_EQ(scratch.read("masolat.hex"),
            ":020000040000fa\r\n\r\n; \xE1rv\xEDz\r\na\r\nb\r\n:10 4200\r\n"
            ":1042000981a1F4005B0018002200F5005C00190090\r\n"
            ":10ab10012300F6005D001A00240005000300E80090\r\n"
            ":10cd2002FF00d1a335a3d2a330a3d3a333a3d4a3AB\r\n"
            ":104240000000\r\nutols\xF3 \r\n");
  EXPECT_EQ(scratch.read("fw.hex"), source);
  EXPECT_EQ(lap.kozos.FirmwareCel + " " + lap.kozos.FirmwareNev, "masolat.hex fw.hex");
  EXPECT_EQ(lap.setup.Verz.Caption.get() + lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev,
            "V5.0.3503");
  EXPECT_EQ(lap.form.Caption.get(), title + "   (masolat.hex)");
  EXPECT_EQ(lap.kozos.Modositott, 0);
  lap.setup.Turesfolle.Value = 0;
  EXPECT_EQ(save(scratch.path("ujabb.hex")), Failure::None) << "the source is read again";
  EXPECT_EQ(read(block.line4220 + "\n" + scratch.read("ujabb.hex")).failure, Failure::None);
  EXPECT_EQ(spins(), "91 92 93 244 245 246 24 25 26 34 35 36 5 1000 0");
}

TEST_F(Firmware, AFailedPatchingTellsWhyAndTouchesNoOtherFile) {
  EXPECT_EQ(save(scratch.path("x.hex")), Failure::FileNotFound);
  EXPECT_EQ(journal, Journal{"box 16: Nincs megnyitva Firmware (hex) file!\r\n"
                             "Mentés előtt nyisson meg egyet!"});
  ASSERT_EQ(read(image).failure, Failure::None);
  dialog.path = scratch.write("a.pwm", "1\n");
  lap.MFSetNyit.click();
  save(scratch.path("x.hex"));
  EXPECT_EQ(journal.size(), 1U) << "a Setup file that was opened closes the firmware file";
  ASSERT_EQ(read(image).failure, Failure::None);
  const std::string opened = lap.form.Caption;

  const auto expectFailure = [this](const std::optional<std::string>& path, Failure failure,
                                    const Journal& boxes) {
    dialog.path = path;
    lap.kozos.Modositott = -1;
    journal.clear();
    Journal expected{"save" + filter + "Modositott.hex"};
    expected.insert(expected.end(), boxes.begin(), boxes.end());
    EXPECT_EQ(lap.saveFirmware(), failure);
    EXPECT_EQ(journal, expected);
    EXPECT_EQ(lap.kozos.Modositott, 0);
  };
  const auto exists = [](const std::string& name) {
    return Journal{"box 16: '" + name + "' már létezik!\r\nMentse más néven!"};
  };
  expectFailure({}, Failure::Cancel, {});
  expectFailure(scratch.path("fw.hex"), Failure::FileExists, exists("fw.hex"));
  expectFailure(scratch.path("a.pwm"), Failure::FileExists, exists("a.pwm"));
  std::filesystem::create_symlink(scratch.path("sehol"), scratch.path("lanc.hex"));
  expectFailure(scratch.path("lanc.hex"), Failure::FileExists, exists("lanc.hex"));
  EXPECT_EQ(lap.form.Caption.get() + lap.kozos.FirmwareCel, opened);
  expectFailure(scratch.path("nincs/x.hex"), Failure::PathNotFound, {writeError + " 76"});
  std::filesystem::create_directory(scratch.path("mappa.hex"));
  expectFailure(scratch.path("mappa.hex"), Failure::PathFileAccess, {driveProblem});
  EXPECT_EQ(lap.kozos.FirmwareCel, "mappa.hex");
  EXPECT_EQ(lap.form.Caption.get(), title + "   (mappa.hex)");
  files.writesThatSucceed = 0;
  expectFailure(scratch.path("tele.hex"), Failure::DiskFull, {writeError + " 61"});
  files.writesThatSucceed = -1;
  files.closeFails = Failure::DeviceIo;
  expectFailure(scratch.path("zar.hex"), Failure::DeviceIo, {writeError + " 57"});
  files.closeFails = Failure::None;
  EXPECT_EQ(scratch.read("fw.hex"), image);
  EXPECT_EQ(scratch.read("a.pwm"), "1\n");

  files.readsThatSucceed = 0;
  expectFailure(scratch.path("olvas.hex"), Failure::DeviceIo, {writeError + " 57"});
  files.readsThatSucceed = -1;

  lap.setup.setSpinValues({{91, 91, 91, 244, 244, 244, 24, 24, 24, 24, 24, 24}, 0, 1000, 1});
  const std::string head = ":020000040000FA\r\n";
  const std::string patched = ":1042000081A1F4005B0018001800F4005B001800A6\r\n";
  const std::string start = head + block.line4200 + "\n";
  int number = 0;
  for (const auto& [source, failure, copied] :
       {std::tuple{head + "x\n", Failure::EndOfFile, head + "x\r\n"},
        std::tuple{start, Failure::EndOfFile, head + patched},
        std::tuple{start + "\n" + block.text(), Failure::NotANumber, head + patched},
        std::tuple{start.substr(0, 57), Failure::NotANumber, head},
        std::tuple{head + ":1Z" + block.line4200.substr(3), Failure::NotANumber, head}}) {
    scratch.write("fw.hex", source);
    const std::string name = std::to_string(number++) + ".hex";
    expectFailure(scratch.path(name), failure,
                  {writeError + " " + std::to_string(static_cast<int>(failure))});
    EXPECT_EQ(scratch.read(name), copied);
    EXPECT_EQ(scratch.read("fw.hex"), source);
  }
  std::filesystem::remove(scratch.path("fw.hex"));
  expectFailure(scratch.path("ures.hex"), Failure::FileNotFound, {writeError + " 53"});
  EXPECT_TRUE(std::filesystem::exists(scratch.path("ures.hex")));
  EXPECT_EQ(scratch.read("ures.hex"), "");
}

}  // namespace
}  // namespace monitra::firmware
