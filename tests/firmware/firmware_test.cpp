#include "support/image.h"
#include "support/program.h"
#include "support/rows.h"

namespace monitra::firmware {
namespace {

using namespace support;
using Call = FaultyFiles::Call;
using platform::Failure;

const std::string filter = " Firmware File (*.hex)|*.hex|Minden File (*.*)|*.* ";
const std::string readError = "box 0: Error in File funktions ! Error Code:";
const std::string writeError = "box 0: Eror in File funktions ! Error Code:";
const std::string driveProblem = "box 0: Drive Problem ! No Write in Drive.";
const std::string title = "Vilor CNC Monitra V2.2.0";

struct Firmware : testing::Test, Program {
  Firmware() {
    lap.Form_Load();
    journal.clear();
  }

  ReadResult read(const std::string& bytes) {
    dialog.path = scratch.write("fw.hex", bytes);
    journal.clear();
    return lap.openFirmware().read;
  }
  /// Saves, and expects this end with nothing behind the dialog but these boxes.
  void save(const std::optional<std::string>& path, Failure failure, Journal boxes = {}) {
    SCOPED_TRACE(path.value_or("cancelled"));
    dialog.path = path;
    lap.kozos.Modositott = -1;
    journal.clear();
    EXPECT_EQ(lap.saveFirmware(), failure);
    boxes.insert(boxes.begin(), "save" + filter + "Modositott.hex");
    EXPECT_TRUE(same(journal, boxes));
    EXPECT_EQ(lap.kozos.Modositott, 0);
  }
  /// The version, the spin values of the Setup, and the base time.
  std::string setup() const {
    std::ostringstream text;
    text << lap.setup.Verz.Caption.get();
    for (int i = 0; i < timing::timingFields; ++i) text << " " << lap.setup.FolLe[i].Value;
    text << " " << lap.setup.Funkcio.ListIndex << " " << lap.setup.Utfolle.Value << " "
         << lap.setup.Turesfolle.Value << " " << lap.kozos.Alapido;
    return text.str();
  }

  /// The image of a row: lines behind one another, some of them by their names.
  std::string imageOf(const std::string& row) const {
    const std::map<std::string, std::string> records({{"first", block.line4200},
                                                      {"second", block.line4210},
                                                      {"third", block.line4220},
                                                      {"end", closingRecord}});
    std::istringstream lines(row);
    std::string bytes;
    for (std::string line; std::getline(lines, line, '/');) {
      bytes += (records.contains(line) ? records.at(line) : line) + "\n";
    }
    return bytes;
  }

  const timing::Setup start = lap.setup.spinValues();
  const Block block;
  const std::string image = imageOf(":020000040000FA/first/second/third/end");
};

TEST_F(Firmware, ReadingSetsTheControlsInTheOrderOfTheBlock) {
  lap.setup.Funkcio.ListIndex = 4;
  lap.setup.Yegesz.Checked = true;
  lap.setup.Spm.Text = "2";
  for (int i = 0; i < timing::timingFields; ++i)
    journalise(journal, lap.setup.FolLe[i].Value, std::to_string(i) + "=");
  journalise(journal, lap.setup.MBTallando.Checked, "mark=");
  journalise(journal, lap.setup.Funkcio.ListIndex, "Funkcio=");
  journalise(journal, lap.setup.Utfolle.Value, "Utfolle=");
  journalise(journal, lap.setup.Turesfolle.Value, "Turesfolle=");
  for (auto* label : {&lap.setup.Verz, &lap.setup.Cim, &lap.setup.Vegallas})
    journalise(journal, label->Caption);
  journalise(journal, lap.form.Caption);
  const Block old{.line4220 = wordRecord(0x4220, {7, 0, '3', 0, '1', 0, '2', 0})};
  EXPECT_EQ(read(lower(old.text())).failure, Failure::None);
  Journal expected = rows("reading")[0];
  expected.insert(expected.begin() + 1, "open" + filter);
  EXPECT_TRUE(same(journal, expected));
  EXPECT_EQ(lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev + lap.kozos.FirmwareNev,
            "312fw.hex");
  EXPECT_TRUE(!lap.setup.Xegesz.Checked && lap.setup.Yegesz.Checked && !lap.setup.Zegesz.Checked);
  EXPECT_EQ(lap.setup.Spm.Text.get(), "2");
  EXPECT_EQ(lap.setup.Xttarto.Caption.get(), "149.253 Hz (50.7%)") << "with the new base time";
}

TEST_F(Firmware, ReadingDecidesByTheVersionDigitAndTheLimitByte) {
  lap.setup.MBTValtozo.click();
  for (const Row& row : rows("digits")) {
    const int digit = std::stoi(row[0]);
    const Block given{wordRecord(0x4200, {std::stoi(row[1]), 1, 2, 3, 4, 5, 6, 7}),
                      wordRecord(0x4210, {38, 39, 40, 41, 42, std::stoi(row[2]), 1, 0}),
                      wordRecord(0x4220, {digit, 0, digit, 0, '0', 0, '9', 0})};
    EXPECT_EQ(read(given.text()).adjusted, 0);
    std::ostringstream behind;
    behind << lap.kozos.Alapido << (lap.setup.MBKTarso.Checked ? " Tarso " : " Vilor ")
           << lap.setup.Funkcio.ListIndex << " " << lap.setup.Vegallas.Caption.get();
    EXPECT_EQ(behind.str(), row[3]) << digit;
    EXPECT_EQ(journal.size() > 1 ? journal.back() : "", row[4]) << digit;
    EXPECT_FALSE(lap.setup.MBTallando.Checked);
  }
  EXPECT_EQ(lap.setup.Verz.Caption.get(), "Vá.0.9");
}

TEST_F(Firmware, ValuesOutsideTheirRangeTakeTheNearestLimit) {
  lap.setup.FolLe[timing::T1X].Value = 1;
  lap.setup.T1[timing::T1X].Text = "1.4";
  for (const char* typed : {"1", "1.3"}) lap.setup.Ut.type(typed);
  const Block given{wordRecord(0x4200, {0, 0, 0, 255, 4, 5, 6, 7}),
                    wordRecord(0x4210, {38, 39, 40, 41, 42, 0xFF, 0, 0})};
  EXPECT_EQ(read(given.text()).adjusted, 4);
  EXPECT_EQ(setup(), "V5.0.3 1 6 40 1 5 39 255 7 41 4 38 42 5 1 9 3.3e-05");
  EXPECT_EQ(lap.setup.T1[timing::T1X].Text.get() + lap.setup.Ut.Text.get(), "11");
}

TEST_F(Firmware, AFailedReadingKeepsWhatCameBeforeAndTellsWhy) {
  for (const Row& row : rows("failed readings")) {
    lap.setup.setSpinValues(start);
    lap.setup.MBKTarso.click();
    lap.setup.Funkcio.ListIndex = 2;
    read(imageOf(row[0]));
    EXPECT_TRUE(same(journal, {"open" + filter, readError + " " + row[1]})) << row[0];
    EXPECT_EQ(setup(), row[2]) << row[0];
    EXPECT_EQ(lap.form.Caption.get() + lap.kozos.FirmwareNev, title + "fw.hex");
    EXPECT_TRUE(lap.setup.MBTallando.Checked);
  }
  EXPECT_EQ(read(std::string(16 << 20, ':')).failure, Failure::EndOfFile);
  EXPECT_EQ(read(std::string((16 << 20) + 1, ':')).failure, Failure::LineTooLong);
  const ImageFault fault = checkImage(files, scratch.path("fw.hex")).faults.at(0);
  EXPECT_EQ(fault.reason + (fault.decisive ? "!" : ""), "túl hosszú sor, ez nem hex fájl!");
}

TEST_F(Firmware, AFileThatCannotBeReadToItsEndTellsWhyOrChangesNothing) {
  files.fail(Call::Open, Failure::PathFileAccess);
  read(image);
  EXPECT_TRUE(same(journal, {"open" + filter, driveProblem}));
  files.fail(Call::Read, Failure::DeviceIo, 1);
  read(image);
  EXPECT_EQ(journal.back(), readError + " 57");
  EXPECT_EQ(lap.setup.Verz.Caption.get() + lap.form.Caption.get(), "V5.0.3" + title)
      << "the second pass failed";
  files.mend();
  read(image);
  journal.clear();
  lap.setup.Funkcio.ListIndex = 2;
  lap.setup.FolLe[0].pressUp();
  const std::string before = setup() + lap.form.Caption.get();
  dialog.path.reset();
  EXPECT_EQ(lap.openFirmware().read.failure, Failure::Cancel);
  dialog.path = scratch.path("nincs.hex");
  EXPECT_EQ(lap.openFirmware().read.failure, Failure::FileNotFound);
  EXPECT_TRUE(
      same(journal, {"open" + filter, "open" + filter, "box 16: 'nincs.hex' nem található !"}));
  EXPECT_EQ(setup() + lap.form.Caption.get(), before);
  EXPECT_EQ(lap.kozos.FirmwareNev + lap.kozos.FirmwareUtvonal, "fw.hex" + scratch.path("fw.hex"));
  EXPECT_TRUE(lap.setup.MBTallando.Checked);
  EXPECT_EQ(lap.kozos.Modositott, 0) << "however it ended";
}

TEST_F(Firmware, PatchingReplacesThreeRecordsAndCopiesTheRestByteByByte) {
  // Neither types nor the addresses behind the first record are looked at. The second record's
  // checksum is a multiple of 256.
  const std::string source = ":020000040000fa\n\r\n; \xE1rv\xEDz\r  a, b\n:10 4200\n" +
                             lower(std::string(block.line4200).replace(7, 2, "09") + "\n" +
                                   std::string(block.line4210).replace(3, 6, "3B1001") + "\n" +
                                   std::string(block.line4220).replace(3, 6, "CD2002") + "\n") +
                             ":104240000000\nutols\xF3 ";
  ASSERT_EQ(read(block.line4220 + "\n" + source).failure, Failure::None);
  scratch.write("fw.hex", source);
  lap.setup.setSpinValues({{91, 92, 93, 244, 245, 246, 24, 25, 26, 34, 35, 36}, 5, 1000, 255});
  lap.setup.TF[0].Text = "17";
  lap.setup.Ut.type("1000.4");
  save(scratch.path("masolat.hex"), Failure::None);
  EXPECT_EQ(scratch.read("masolat.hex"),
            ":020000040000fa\r\n\r\n; \xE1rv\xEDz\r\na\r\nb\r\n:10 4200\r\n"
            ":1042000981a1F4005B0018002200F5005C00190090\r\n"
            ":103b10012300F6005D001A00240005000300E80000\r\n"
            ":10cd2002FF00d1a335a3d2a330a3d3a333a3d4a3AB\r\n"
            ":104240000000\r\nutols\xF3 \r\n");
  EXPECT_EQ(lap.kozos.FirmwareCel + " " + lap.kozos.FirmwareNev, "masolat.hex fw.hex");
  EXPECT_EQ(lap.setup.Verz.Caption.get() + lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev,
            "V5.0.3503");
  EXPECT_EQ(lap.form.Caption.get(), title + "   (masolat.hex)");
}

TEST_F(Firmware, PatchingNeedsAFileThatWasReadAndTouchesNoOther) {
  const std::string nothingOpen =
      "box 16: Nincs megnyitva Firmware (hex) file!\r\nMentés előtt nyisson meg egyet!";
  EXPECT_EQ(lap.saveFirmware(), Failure::FileNotFound);
  EXPECT_TRUE(same(journal, {nothingOpen}));
  ASSERT_EQ(read(image).failure, Failure::None);
  dialog.path = scratch.write("a.pwm", "1\n");
  lap.MFSetNyit.click();
  journal.clear();
  lap.saveFirmware();
  EXPECT_TRUE(same(journal, {nothingOpen})) << "a Setup file closes that of the firmware";
  ASSERT_EQ(read(image).failure, Failure::None);
  save({}, Failure::Cancel);
  std::filesystem::create_symlink(scratch.path("sehol"), scratch.path("lanc.hex"));
  std::filesystem::create_directory(scratch.path("mappa.hex"));
  for (const Row& row : rows("targets")) {
    save(scratch.path(row[0]), static_cast<Failure>(std::stoi(row[1])), {row[2]});
    EXPECT_EQ((Row{lap.form.Caption, lap.kozos.FirmwareCel}), Row(row.begin() + 3, row.end()));
  }
  EXPECT_EQ(scratch.read("fw.hex") + scratch.read("a.pwm"), image + "1\n");
}

TEST_F(Firmware, AFailedPatchingKeepsWhatWasWrittenSoFarAndTellsWhy) {
  ASSERT_EQ(read(image).failure, Failure::None);
  lap.setup.setSpinValues(start);
  for (const Row& row : rows("failed patchings")) {
    scratch.write("fw.hex", imageOf(row[0]));
    std::filesystem::remove(scratch.path("x.hex"));
    save(scratch.path("x.hex"), static_cast<Failure>(std::stoi(row[1])),
         {writeError + " " + row[1]});
    EXPECT_EQ(scratch.read("x.hex"), row[2]) << row[0];
  }
  std::filesystem::remove(scratch.path("fw.hex"));
  save(scratch.path("ures.hex"), Failure::FileNotFound, {writeError + " 53"});
  EXPECT_TRUE(std::filesystem::exists(scratch.path("ures.hex")));
}

TEST_F(Firmware, TheCheckTellsTheFirstFaultsAndAllDecisiveOnes) {
  for (const Row& row : rows("images")) {
    const std::string bytes = imageOf(row[0]);
    const ImageReport report = checkImage(files, scratch.write("k.hex", bytes));
    std::string told = report.blockIsSound ? "sound;" : "";
    for (const ImageFault& fault : report.faults) {
      told += std::to_string(fault.line) + (fault.decisive ? "! " : " ") + fault.reason + ";";
    }
    EXPECT_EQ(told, row[1]) << bytes;
  }
  std::string page;
  for (int line = 0; line < 30; ++line) page += "<br>\n";
  page += block.line4200 + "\n" + block.line4210 + "\nx\n";
  std::vector<long> told;
  const ImageReport report =
      checkImage(files, scratch.write("k.hex", page),
                 [&told](const ImageFault& fault) { told.push_back(fault.line); });
  ASSERT_EQ(told.size(), 32U) << "each as it is found";
  EXPECT_TRUE(told[29] == 30 && told[30] == 33 && told[31] == 0);
  EXPECT_TRUE(report.faultCount == 32 && report.records == 2 && report.blockLine == 31);
  ASSERT_EQ(report.faults.size(), 22U);
  EXPECT_EQ(report.faults[20].line, 33);
  EXPECT_EQ(checkImage(files, scratch.path("nincs")).failure, Failure::FileNotFound);
}

}  // namespace
}  // namespace monitra::firmware
