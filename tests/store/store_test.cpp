#include "store/text_reader.h"
#include "support/program.h"
#include "support/rows.h"

namespace monitra::store {
namespace {

using namespace support;
using platform::Failure;

const std::string filter = " Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.* ";
const std::string version = "Vilor CNC Monitra V2.2.0  ";

const std::string startUpFile =
    "91\r\n91\r\n91\r\n244\r\n244\r\n244\r\n24\r\n24\r\n24\r\n24\r\n24\r\n24\r\n 0\r\n1000\r\n1\r\n"
    "V?.?.?\r\n 5\r\n 0\r\n 3\r\nF\r\nF\r\nF\r\n";
const std::string otherFile =
    "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n255\r\n 3\r\n65535\r\n0\r\n"
    "V5 \xE1rv\xEDz\x81\r\n 2\r\n-1\r\n 10\r\nE\r\nF\r\nE\r\n";

struct Store : testing::Test, Program {
  Store() {
    lap.Form_Load();
    kozos.FirmwareNev = "fw.hex";
    lap.form.Caption = "régi cím";
    kozos.Modositott = -1;
    journal.clear();
  }

  OpenResult open(const std::string& bytes) {
    dialog.path = scratch.write("teszt.pwm", bytes);
    return lap.setupFiles().MFSetNyit_Click();
  }
  /// Opens the start-up file with one text in the place of another.
  OpenResult openWith(const std::string& to, const std::string& from) {
    std::string bytes = startUpFile;
    return open(bytes.replace(bytes.find(from), from.size(), to));
  }
  /// Opens or saves this file, and expects that behind its dialog, and the failure in the end.
  void expect(const std::string& kind, const std::optional<std::string>& path, Journal expected) {
    journal.clear();
    dialog.path = path;
    const Failure failure = kind == "save" ? lap.setupFiles().MFSetMent_Click()
                                           : lap.setupFiles().MFSetNyit_Click().failure;
    journal.push_back(std::to_string(static_cast<int>(failure)));
    expected.insert(expected.begin(), kind + filter + "Modositott.pwm");
    EXPECT_TRUE(same(journal, expected)) << kind << " " << path.value_or("cancelled");
  }
  std::string saved() {
    std::filesystem::remove(scratch.path("mentett.pwm"));
    expect("save", scratch.path("mentett.pwm"), {"0"});
    return scratch.read("mentett.pwm");
  }
  std::string names() const { return lap.form.Caption.get() + kozos.FirmwareNev; }

  timing::Kozos& kozos = lap.kozos;
  timing::SetupPanel& panel = lap.setup;
};

TEST(TextReader, SplitsLinesAndFieldsAtAnyLineEnd) {
  struct OneByteAtATime : platform::ByteReader {
    explicit OneByteAtATime(const std::string& bytes) : left(bytes) {}
    Failure read(std::string& chunk) override {
      chunk = left.substr(0, 1);
      left.erase(0, 1);
      return Failure::None;
    }
    std::string left;
  };
  for (Row row : rows("lines")) {
    std::ranges::replace(row[0], '<', '\r');
    std::ranges::replace(row[0], '>', '\n');
    for (const auto& [next, expected] :
         {std::pair(&TextReader::readLine, row[1]), std::pair(&TextReader::readField, row[2])}) {
      TextReader reader(std::make_unique<OneByteAtATime>(row[0]));
      std::string joined, text;
      while ((reader.*next)(text) == Failure::None) joined += "[" + text + "]";
      EXPECT_EQ(joined, expected) << row[0];
    }
  }
}

TEST_F(Store, ASavedSetupHasItsBytesAndComesBackWithThem) {
  dialog.whileOpen = [this] { EXPECT_EQ(kozos.Modositott, 0) << "cleared ahead of all"; };
  EXPECT_EQ(saved(), startUpFile);
  EXPECT_EQ(names(), "régi címfw.hex");
  dialog.whileOpen = nullptr;
  for (const std::string& bytes : {startUpFile, otherFile}) {
    expect("open", scratch.write("teszt.pwm", bytes), {"0"});
    EXPECT_EQ(names(), version + "(teszt.pwm)");
    EXPECT_EQ(saved(), bytes);
  }
  const timing::Setup other{
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 255}, 3, 65535, 0, true, false, true};
  EXPECT_EQ(panel.spinValues(), other);
  panel.setSpinValues({.Yegesz = true});
  panel.setSpinValues(other);
  EXPECT_EQ(panel.spinValues(), other);
  EXPECT_TRUE(panel.MBKVilor.Checked) << "the digit 2 brings the first edition";
  EXPECT_EQ(kozos.VerFo + kozos.VerAl + kozos.VerRev + " " + panel.Xttarto.Caption.get(),
            "2-110 588.235 Hz (58.8%)");
}

TEST_F(Store, WhateverAFileBringsEveryFieldKeepsItsRange) {
  const controls::TextBox none;
  const std::map<std::string, std::pair<const controls::TextBox&, const controls::BoundedProperty&>>
      fields{{"24", {panel.T2[6], panel.FolLe[6].Value}},
             {"1000", {panel.Ut, panel.Utfolle.Value}},
             {"1", {panel.Tures, panel.Turesfolle.Value}},
             {" 0", {none, panel.Funkcio.ListIndex}}};
  for (const Row& row : rows("ranges")) {
    const int adjusted = openWith("\r\n" + row[1] + "\r\n", "\r\n" + row[0] + "\r\n").adjusted;
    const auto& [field, value] = fields.at(row[0]);
    EXPECT_EQ((Row{row[0], row[1], field.Text, std::to_string(value), std::to_string(adjusted)}),
              row);
  }
}

TEST_F(Store, OddLinesAreReadByTheLetter) {
  open("91,5\r\n" + startUpFile.substr(4));
  EXPECT_EQ(panel.TF[0].Text.get(), "91,5") << "the first two lines are read whole";
  openWith("10,7", "1000");
  EXPECT_EQ(panel.Verz.Caption.get() + "|" + kozos.VerFo, "1|0") << "the rest slides";
  openWith("E\r\ne\r\nE ", "F\r\nF\r\nF");
  EXPECT_TRUE(panel.Xegesz.Checked && !panel.Yegesz.Checked && !panel.Zegesz.Checked);
  EXPECT_EQ(open("91\r\n" + std::string(65536, '9')).failure, Failure::EndOfFile);
  EXPECT_EQ(open("91\r\n" + std::string(65537, '9')).failure, Failure::LineTooLong);
  EXPECT_EQ(journal.back(), "box 0: Eror in File funktions ! Error Code: 14");
  panel.MBKVilor.click();
  openWith(" 5\r\n1000", " 0\r\n1000");
  EXPECT_EQ(panel.Funkcio.ListIndex, 0) << "judged by the edition in force ahead of the file";
  EXPECT_TRUE(journal.back().starts_with("box 48: Ez a funkció (")) << journal.back();
}

TEST_F(Store, WhatIsOpenedOrSavedTellsWhatItAsksAndWhyItFails) {
  const std::string folder = scratch.path() + "/";
  std::filesystem::create_directory(folder + "mappa");
  scratch.write("volt.pwm", "régi, hosszabb tartalom" + startUpFile);
  box.answers = {platform::BoxAnswer::No, platform::BoxAnswer::Yes};
  for (const Row& row : rows("files")) {
    const std::filesystem::path path = std::filesystem::path(folder) / row[1];
    expect(row[0], row[1] == "cancel" ? std::nullopt : std::optional(path.string()),
           Journal(row.begin() + 4, row.end()));
    EXPECT_EQ((Row{scratch.read("volt.pwm") == startUpFile ? "new" : "old", names()}),
              Row(row.begin() + 2, row.begin() + 4));
  }
  kozos.VerFo = "A";
  expect("save", folder + "betu.pwm", {"box 0: Eror in File funktions ! Error Code: 13", "13"});
  EXPECT_EQ(scratch.read("betu.pwm"), startUpFile.substr(0, startUpFile.find(" 5\r\n 0")));
}

TEST_F(Store, AFileThatIsCutShortChangesWhatItHolds) {
  panel.Xegesz.Checked = true;
  expect("open", scratch.write("teszt.pwm", otherFile.substr(0, otherFile.find('V'))), {"62"});
  EXPECT_EQ(panel.TF[0].Text.get() + "|" + panel.Ut.Text.get() + "|" + panel.Verz.Caption.get() +
                "|" + kozos.VerFo + names(),
            "1|65535|V?.?.?|5" + version + "(teszt.pwm)");
  EXPECT_TRUE(panel.Xegesz.Checked && panel.MBKTarso.Checked);
  EXPECT_EQ(kozos.Modositott, -1);
}

TEST_F(Store, WhatAFailedSaveHasTornIsKeptUntilOneSucceeds) {
  const std::string path = scratch.write("volt.pwm", otherFile);
  scratch.write("volt.pwm~", "somebody's own");
  const auto save = [&](const std::string& content, const std::string& kept) {
    dialog.path = path;
    lap.setupFiles().MFSetMent_Click();
    EXPECT_EQ(lap.setupFiles().keptCopy(), kept.empty() ? "" : path + "~2");
    EXPECT_TRUE(same({scratch.read("volt.pwm"), scratch.read("volt.pwm~2")}, {content, kept}));
  };
  files.fail(FaultyFiles::Call::Create, Failure::DiskFull);
  save(otherFile, "");
  files.fail(FaultyFiles::Call::Write, Failure::DiskFull, 1);
  const std::string half = startUpFile.substr(0, startUpFile.size() / 2);
  for (int twice = 0; twice < 2; ++twice) save(half, otherFile);
  files.mend();
  save(startUpFile, "");
  EXPECT_EQ(scratch.read("volt.pwm~"), "somebody's own");
}

TEST_F(Store, OddPreferencesKeepTheirMeaning) {
  const Preferences preferences(settings, "Monitra Setup");
  for (const auto& [stored, index] :
       {std::pair("1.5", 2), std::pair(" 3", 0), std::pair("-1", 0)}) {
    settings.values = {{"LPT", stored}, {"Inv1", stored}, {"PCB", stored}};
    EXPECT_EQ(preferences.lptIndex(), index) << stored;
    EXPECT_TRUE(preferences.inverted(1) && !preferences.boardV4x()) << stored;
  }
}

}  // namespace
}  // namespace monitra::store
