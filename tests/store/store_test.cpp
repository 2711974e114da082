#include "store/text_reader.h"
#include "support/session.h"

namespace monitra::store {
namespace {

using namespace support;
using platform::Failure;

const std::string startUpFile =
    "91\r\n91\r\n91\r\n244\r\n244\r\n244\r\n24\r\n24\r\n24\r\n24\r\n24\r\n24\r\n 0\r\n1000\r\n1\r\n"
    "V?.?.?\r\n 5\r\n 0\r\n 3\r\nF\r\nF\r\nF\r\n";
const std::string otherFile =
    "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n11\r\n255\r\n 3\r\n65535\r\n0\r\n"
    "V5 \xE1rv\xEDz\x81\r\n 2\r\n-1\r\n 10\r\nE\r\nF\r\nE\r\n";

struct Store : Session {
  OpenResult open(const std::string& bytes) {
    dialog.path = scratch.write("teszt.pwm", bytes);
    return lap.setupFiles().MFSetNyit_Click();
  }

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
  int atTheDialog = -1;
  dialog.whileOpen = [&] { atTheDialog = lap.kozos.Modositott; };
  for (const std::string& bytes : {startUpFile, otherFile}) {
    open(bytes);
    lap.kozos.Modositott = -1;
    dialog.path = scratch.path("mentett.pwm");
    lap.MFSetMent.click();
    EXPECT_EQ(scratch.read("mentett.pwm"), bytes);
    EXPECT_EQ(atTheDialog, 0) << "cleared ahead of all";
  }
  const timing::Setup other{
      {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 255}, 3, 65535, 0, true, false, true};
  EXPECT_EQ(panel.spinValues(), other);
  panel.setSpinValues({.Yegesz = true});
  EXPECT_TRUE(panel.Yegesz.Checked);
  panel.setSpinValues(other);
  EXPECT_EQ(panel.spinValues(), other);
}

TEST_F(Store, ALineHasAnEnd) {
  EXPECT_EQ(open("91\r\n" + std::string(65536, '9')).failure, Failure::EndOfFile);
  EXPECT_EQ(open("91\r\n" + std::string(65537, '9')).failure, Failure::LineTooLong);
  EXPECT_EQ(journal.back(), "box 0: Eror in File funktions ! Error Code: 14");
}

TEST_F(Store, WhatIsOpenedOrSavedChangesAndTellsWhatItShould) {
  std::filesystem::create_directory(scratch.path("mappa"));
  play("files");
  play("ranges");
  lap.kozos.VerFo = "A";
  dialog.path = scratch.path("betu.pwm");
  lap.MFSetMent.click();
  EXPECT_EQ(journal.back(), "box 0: Eror in File funktions ! Error Code: 13");
  EXPECT_EQ(scratch.read("betu.pwm"), startUpFile.substr(0, startUpFile.find(" 5\r\n 0")));
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
