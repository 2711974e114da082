#include <array>
#include <gtest/gtest.h>

#include "host/windows1250.h"
#include "link/upload.h"
#include "store/preferences.h"
#include "store/pwm_format.h"
#include "store/setup_files.h"
#include "store/text_reader.h"
#include "support/faulty_files.h"
#include "support/journal.h"
#include "support/scratch.h"
#include "timing/tuning_fields.h"

namespace monitra::store {
namespace {

using platform::Failure;
using support::Journal;

const std::string openDialog = "open Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* Modositott.pwm";
const std::string saveDialog = "save Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* Modositott.pwm";
const std::string driveProblem = "box 0: Drive Problem ! No Write in Drive.";
const std::string general = "box 0: Eror in File funktions ! Error Code:";

const std::string startUpFile =
    "91\r\n91\r\n91\r\n244\r\n244\r\n244\r\n24\r\n24\r\n24\r\n24\r\n24\r\n24\r\n 0\r\n1000\r\n1\r\n"
    "V?.?.?\r\n 5\r\n 0\r\n 3\r\nF\r\nF\r\nF\r\n";
const std::string otherFile =
    "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n255\r\n 3\r\n65535\r\n0\r\n"
    "V1.2.3\r\n 2\r\n-1\r\n 10\r\nE\r\nF\r\nE\r\n";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  text.replace(text.find(from), from.size(), to);
  return text;
}

struct Store : testing::Test {
  Store() {
    kozos.VerFo = "5";
    kozos.VerAl = "0";
    kozos.VerRev = "3";
    panel.MBKTarso.click();
    kozos.FirmwareNev = "fw.hex";
    form.Caption = "régi cím";
    kozos.Modositott = -1;
    journal.clear();
  }

  OpenResult open(const std::string& bytes) {
    dialog.path = scratch.write("teszt.pwm", bytes);
    return files.MFSetNyit_Click();
  }
  std::string save() {
    std::filesystem::remove(scratch.path("mentett.pwm"));
    dialog.path = scratch.path("mentett.pwm");
    EXPECT_EQ(files.MFSetMent_Click(), Failure::None);
    return scratch.read("mentett.pwm");
  }

  Journal journal;
  support::Scratch scratch;
  support::JournalBoxes box{journal};
  support::JournalDialog dialog{journal};
  support::FaultyFiles disk;
  host::Windows1250 codePage;
  platform::ProgramIdentity program{"Monitra Setup", "", "", 2, 2, 0};
  timing::Kozos kozos;
  timing::SetupPanel panel;
  timing::TimingFields fields{kozos, panel};
  timing::Editions editions{kozos, panel, fields, box};
  timing::TuningFields tuning{panel};
  controls::Form form;
  SetupFiles files{{dialog, disk, codePage, box, program}, kozos, panel, editions, form};
};

TEST(TextReader, SplitsLinesAndFieldsAtAnyLineEnd) {
  class OneByteAtATime : public platform::ByteReader {
   public:
    explicit OneByteAtATime(std::string bytes) : bytes_(std::move(bytes)) {}
    Failure read(std::string& chunk) override {
      chunk = bytes_.substr(0, 1);
      bytes_.erase(0, chunk.size());
      return Failure::None;
    }

   private:
    std::string bytes_;
  };
  const auto all = [](const std::string& bytes, Failure (TextReader::*next)(std::string&)) {
    TextReader reader(std::make_unique<OneByteAtATime>(bytes));
    std::string joined;
    std::string text;
    Failure failure = Failure::None;
    while ((failure = (reader.*next)(text)) == Failure::None) joined += "[" + text + "]";
    EXPECT_EQ(failure, Failure::EndOfFile);
    return joined;
  };
  using Row = std::array<std::string, 3>;
  for (const auto& [bytes, lines, fields] :
       {Row{"", "", ""}, Row{"a\r\nb\r\n", "[a][b]", "[a][b]"}, Row{"a\nb", "[a][b]", "[a][b]"},
        Row{"a\rb\r", "[a][b]", "[a][b]"}, Row{"a\r\n\r\n", "[a][]", "[a][]"},
        Row{"  a b ,c\r\n  ", "[  a b ,c][  ]", "[a b ][c][]"},
        Row{"a,\r\n\tb", "[a,][\tb]", "[a][][\tb]"}, Row{"\"a,b\"", "[\"a,b\"]", "[\"a][b\"]"}}) {
    EXPECT_EQ(all(bytes, &TextReader::readLine), lines);
    EXPECT_EQ(all(bytes, &TextReader::readField), fields);
  }
}

TEST_F(Store, StartUpSetupIsSavedToTheByte) {
  dialog.whileOpen = [this] { EXPECT_EQ(kozos.Modositott, 0) << "cleared ahead of all"; };
  EXPECT_EQ(save(), startUpFile);
  EXPECT_EQ(journal, (Journal{saveDialog}));
  EXPECT_EQ(form.Caption.get() + kozos.FirmwareNev, "régi címfw.hex");
}

TEST_F(Store, OpenThenSaveGivesTheSameFile) {
  for (const std::string& bytes :
       {startUpFile, otherFile, replaced(startUpFile, "V?.?.?", "V5 \xE1rv\xEDz\x81")}) {
    const OpenResult result = open(bytes);
    EXPECT_EQ(result.failure, Failure::None);
    EXPECT_EQ(result.records.size(), 22U);
    EXPECT_EQ(result.adjusted, 0);
    EXPECT_EQ(save(), bytes);
  }
  // Another spelling of a number stays where its value stood already, and is rewritten elsewhere.
  for (const std::string& bytes :
       {replaced(startUpFile, "\r\n24\r\n", "\r\n024\r\n"), replaced(otherFile, "65535", "12.5")}) {
    open(bytes);
    const std::string saved = save();
    open(saved);
    EXPECT_EQ(save(), saved);
  }
}

TEST_F(Store, OpeningAppliesEveryRecord) {
  panel.Spm.type("2");
  EXPECT_EQ(open(otherFile).records.size(), 22U);
  EXPECT_EQ(journal, (Journal{openDialog}));
  EXPECT_EQ(form.Caption.get(), "Vilor CNC Monitra V2.2.0  (teszt.pwm)");
  EXPECT_EQ(kozos.FirmwareNev, "");
  EXPECT_EQ(kozos.Modositott, 0);
  EXPECT_EQ(
      link::setupMessage(panel.spinValues()),
      (link::SetupMessage{85, 0, 4, 1, 7, 10, 5, 2, 8, 11, 6, 3, 9, 255, 3, 255, 255, 0, 5, 255}));
  EXPECT_EQ(panel.Verz.Caption.get(), "V1.2.3");
  EXPECT_EQ(kozos.VerFo + "|" + kozos.VerAl + "|" + kozos.VerRev, "2|-1|10");
  EXPECT_TRUE(panel.MBKVilor.Checked) << "the digit 2 brings the first edition";
  EXPECT_EQ(panel.Xttarto.Caption.get(), "588.235 Hz (58.8%)");
  EXPECT_EQ(panel.Spm.Text.get(), "2") << "no file holds it";
}

TEST_F(Store, WhateverAFileBringsEveryFieldKeepsItsRange) {
  // Each row: what stands in the file, the text and the value that follow, how many were adjusted.
  const auto check = [this](const std::string& from, const controls::TextBox& field,
                            const auto& value, const std::vector<std::string>& rows) {
    for (const std::string& row : rows) {
      const std::string given = row.substr(0, row.find('|'));
      const OpenResult result = open(replaced(startUpFile, from, "\r\n" + given + "\r\n"));
      EXPECT_EQ(given + "|" + field.Text.get() + "|" + std::to_string(value) + "|" +
                    std::to_string(result.adjusted),
                row);
    }
  };
  const std::string out = "99999999999999999999";
  check("\r\n24\r\n", panel.T2[6], panel.FolLe[timing::T2X].Value.get(),
        {"024|024|24|0", " 24|24|24|0", "030|30|30|0", "300|255|255|1", "300|255|255|1",
         "255.4|255|255|1", "0|1|1|1", "0|1|1|1", "0.6|1|1|1", "-5|1|1|1", "|1|1|1", "kép|1|1|1",
         out + "|255|255|1", "24|24|24|0", "24.4|24.4|24|0", "24;5|24;5|24|0"});
  check("\r\n1000\r\n", panel.Ut, panel.Utfolle.Value.get(),
        {"70000|65535|65535|1", "|1|1|1", out + "|65535|65535|1", "0.5|1|1|1", "7|7|7|0"});
  check("\r\n1\r\n", panel.Tures, panel.Turesfolle.Value.get(),
        {"256|255|255|1", "-1|0|0|1", "0|0|0|0", "||0|0"});
  const controls::TextBox none("-");
  check("\r\n 0\r\n", none, panel.Funkcio.ListIndex.get(),
        {" 9|-|5|1", "-9|-|0|1", " 2|-|2|0", "x|-|0|0"});
}

TEST_F(Store, OddLinesAreReadByTheLetter) {
  open("91,5\r\n" + startUpFile.substr(4));
  EXPECT_EQ(panel.TF[0].Text.get(), "91,5") << "the first two lines are read whole";
  open(replaced(startUpFile, "1000", "10,7"));
  EXPECT_EQ(panel.Verz.Caption.get() + "|" + kozos.VerFo, "1|0") << "the rest slides";
  open(replaced(startUpFile, "F\r\nF\r\nF", "E\r\ne\r\nE "));
  EXPECT_TRUE(panel.Xegesz.Checked && !panel.Yegesz.Checked && !panel.Zegesz.Checked);
  const OpenResult endless = open("91\r\n" + std::string(70000, '9'));
  EXPECT_EQ(endless.failure, Failure::LineTooLong);
  EXPECT_EQ(journal.back(), general + " 14");
}

TEST_F(Store, AShortFileAppliesWhatItHasAndSaysNothing) {
  panel.Xegesz.Checked = true;
  const OpenResult result = open(otherFile.substr(0, otherFile.find("V1.2.3")));
  EXPECT_EQ(result.failure, Failure::EndOfFile);
  EXPECT_EQ(result.records.size(), 15U);
  EXPECT_EQ(journal, (Journal{openDialog}));
  EXPECT_EQ(panel.TF[0].Text.get() + "|" + panel.Ut.Text.get() + "|" + panel.Verz.Caption.get() +
                "|" + kozos.VerFo,
            "1|65535|V?.?.?|5");
  EXPECT_TRUE(panel.Xegesz.Checked && panel.MBKTarso.Checked);
  EXPECT_EQ(kozos.Modositott, -1);
  EXPECT_EQ(open("").records.size(), 0U);
  EXPECT_EQ(form.Caption.get(), "Vilor CNC Monitra V2.2.0  (teszt.pwm)");
}

TEST_F(Store, WhatCannotBeOpenedChangesNothingAheadOfItsMessage) {
  const auto expectUnchanged = [this](const std::optional<std::string>& path, Failure failure,
                                      const Journal& boxes, const std::string& title) {
    dialog.path = path;
    EXPECT_EQ(files.MFSetNyit_Click().failure, failure);
    Journal expected{openDialog};
    expected.insert(expected.end(), boxes.begin(), boxes.end());
    EXPECT_EQ(journal, expected);
    EXPECT_EQ(form.Caption.get(), title);
    EXPECT_EQ(panel.FolLe[0].Value, 91);
    EXPECT_EQ(kozos.Modositott, -1);
    journal.clear();
  };
  scratch.write("teszt.pwm", startUpFile);
  std::filesystem::create_directory(scratch.path("mappa"));
  expectUnchanged({}, Failure::Cancel, {}, "régi cím");
  for (const std::string name : {"nincs.pwm", "mappa", "TESZT.PWM"}) {
    expectUnchanged(scratch.path(name), Failure::FileNotFound,
                    {"box 16: '" + name + "' nem létezik!\r\nAdjon meg létező File nevet!"},
                    "régi cím");
  }
  EXPECT_EQ(kozos.FirmwareNev, "fw.hex");
  const std::string version = "Vilor CNC Monitra V2.2.0  ";
  expectUnchanged("/dev/null", Failure::PathFileAccess, {driveProblem}, version + "(null)");
  expectUnchanged("/proc/self/mem", Failure::DeviceIo, {general + " 57"}, version + "(mem)");
  EXPECT_EQ(kozos.FirmwareNev, "");
}

TEST_F(Store, FunkcioFiveIsJudgedByTheEditionInForceWhenItsLineComes) {
  panel.MBKVilor.click();
  open(replaced(startUpFile, " 0\r\n1000", " 5\r\n1000"));
  EXPECT_EQ(panel.Funkcio.ListIndex, 0);
  ASSERT_EQ(journal.size(), 2U);
  EXPECT_TRUE(journal[1].starts_with("box 48: Ez a funkció (")) << journal[1];
  EXPECT_TRUE(panel.MBKTarso.Checked);
}

TEST_F(Store, OverwritesOnlyAfterYes) {
  dialog.path = scratch.write("volt.pwm", "régi, hosszabb tartalom" + startUpFile);
  box.answers = {platform::BoxAnswer::No, platform::BoxAnswer::Yes};
  const std::string question = "box 52: 'volt.pwm' már létezik!\r\nFelülírjam?";
  EXPECT_EQ(files.MFSetMent_Click(), Failure::Cancel);
  EXPECT_EQ(scratch.read("volt.pwm"), "régi, hosszabb tartalom" + startUpFile);
  EXPECT_EQ(files.MFSetMent_Click(), Failure::None);
  EXPECT_EQ(scratch.read("volt.pwm"), startUpFile);
  EXPECT_EQ(journal, (Journal{saveDialog, question, saveDialog, question}));
}

TEST_F(Store, AFailedSaveKeepsTheLinesWrittenSoFarAndSaysWhy) {
  const auto expectFailure = [this](const std::optional<std::string>& path, Failure failure,
                                    Journal boxes) {
    dialog.path = path;
    kozos.Modositott = -1;
    journal.clear();
    EXPECT_EQ(files.MFSetMent_Click(), failure);
    boxes.insert(boxes.begin(), saveDialog);
    EXPECT_EQ(journal, boxes);
  };
  expectFailure({}, Failure::Cancel, {});
  expectFailure(scratch.path("nincs mappa/a.pwm"), Failure::PathNotFound, {general + " 76"});
  expectFailure(scratch.path(), Failure::PathFileAccess, {driveProblem});
  expectFailure("/dev/full", Failure::DiskFull,
                {"box 52: 'full' már létezik!\r\nFelülírjam?", general + " 61"});
  disk.writesThatSucceed = 3;
  expectFailure(scratch.path("tele.pwm"), Failure::DiskFull, {general + " 61"});
  EXPECT_EQ(scratch.read("tele.pwm"), "91\r\n91\r\n91\r\n");
  disk.writesThatSucceed = -1;
  disk.closeFails = Failure::DeviceIo;
  expectFailure(scratch.path("zar.pwm"), Failure::DeviceIo, {general + " 57"});
  kozos.VerFo = "A";
  expectFailure(scratch.path("betu.pwm"), Failure::NotANumber, {general + " 13"});
  EXPECT_EQ(scratch.read("betu.pwm"), startUpFile.substr(0, startUpFile.find(" 5\r\n 0")));
}

TEST(Preferences, OddStoredTextsKeepTheirMeaning) {
  Journal journal;
  support::JournalSettings settings(journal);
  const Preferences preferences(settings, "Monitra Setup");
  for (const auto& [stored, index] : {std::pair(" 1", 1), std::pair("1", 1), std::pair("1.5", 2),
                                      std::pair(" 3", 0), std::pair("-1", 0), std::pair("x", 0)}) {
    settings.values["LPT"] = stored;
    EXPECT_EQ(preferences.lptIndex(), index) << stored;
  }
  for (const char* stored : {"2", "", "1", " 0"}) {
    settings.values["Inv1"] = stored;
    EXPECT_TRUE(preferences.inverted(1)) << stored;
  }
  for (const char* stored : {"32", "33", "", " 40"}) {
    settings.values["PCB"] = stored;
    EXPECT_FALSE(preferences.boardV4x()) << stored;
  }
}

}  // namespace
}  // namespace monitra::store
