#include "support/session.h"

namespace monitra::firmware {
namespace {

using namespace support;
using platform::Failure;

struct Firmware : Session {
  ReadResult read(const std::string& bytes) {
    dialog.path = scratch.write("fw.hex", bytes);
    journal.clear();
    return lap.openFirmware().read;
  }
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
  expected.insert(expected.begin() + 1, "open Firmware File (*.hex)|*.hex|Minden File (*.*)|*.* ");
  EXPECT_TRUE(same(journal, expected));
  EXPECT_EQ(lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev + lap.kozos.FirmwareNev,
            "312fw.hex");
  EXPECT_TRUE(!lap.setup.Xegesz.Checked && lap.setup.Yegesz.Checked && !lap.setup.Zegesz.Checked);
  EXPECT_EQ(lap.setup.Spm.Text.get(), "2");
  EXPECT_EQ(lap.setup.Xttarto.Caption.get(), "149.253 Hz (50.7%)") << "with the new base time";
}

TEST_F(Firmware, ReadingAndPatchingTellWhatComesOfThem) {
  std::filesystem::create_symlink(scratch.path("sehol"), scratch.path("lanc.hex"));
  std::filesystem::create_directory(scratch.path("mappa.hex"));
  play("images read and patched");
  lap.setup.MBTValtozo.click();
  play("digits");
}

TEST_F(Firmware, ALineHasAnEnd) {
  EXPECT_EQ(read(std::string(16 << 20, ':')).failure, Failure::EndOfFile);
  EXPECT_EQ(read(std::string((16 << 20) + 1, ':')).failure, Failure::LineTooLong);
  const ImageFault fault = checkImage(files, scratch.path("fw.hex")).faults.at(0);
  EXPECT_EQ(fault.reason + (fault.decisive ? "!" : ""), "túl hosszú sor, ez nem hex fájl!");
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
  lap.kozos.Modositott = -1;
  dialog.path = scratch.path("masolat.hex");
  EXPECT_EQ(lap.saveFirmware(), Failure::None);
  EXPECT_EQ(scratch.read("masolat.hex"),
            ":020000040000fa\r\n\r\n; \xE1rv\xEDz\r\na\r\nb\r\n:10 4200\r\n"
            ":1042000981a1F4005B0018002200F5005C00190090\r\n"
            ":103b10012300F6005D001A00240005000300E80000\r\n"
            ":10cd2002FF00d1a335a3d2a330a3d3a333a3d4a3AB\r\n"
            ":104240000000\r\nutols\xF3 \r\n");
  EXPECT_EQ(lap.kozos.FirmwareCel + " " + lap.kozos.FirmwareNev, "masolat.hex fw.hex");
  EXPECT_EQ(lap.setup.Verz.Caption.get() + lap.kozos.VerFo + lap.kozos.VerAl + lap.kozos.VerRev,
            "V5.0.3503");
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0   (masolat.hex)");
  EXPECT_EQ(lap.kozos.Modositott, 0);
}

TEST_F(Firmware, TheCheckTellsTheFirstFaultsAndAllDecisiveOnes) {
  for (const Row& row : rows("images")) {
    const std::string bytes = bytesOf(row[0]);
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
