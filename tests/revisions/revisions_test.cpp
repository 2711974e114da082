#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <set>

#include "link/upload.h"
#include "store/pwm_format.h"
#include "support/image.h"
#include "support/program.h"
#include "timing/numbers.h"

namespace monitra::revisions {
namespace {

using namespace support;

/// The started program, to which a user does this and that.
struct Used : Program {
  explicit Used(unsigned seed) : random(seed) { lap.Form_Load(); }

  int any(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
  template <class List>
  const auto& oneOf(const List& list) {
    return list[static_cast<std::size_t>(any(static_cast<int>(std::size(list))))];
  }

  std::string anyFile() {
    std::string bytes;
    const int lines = any(8) == 0 ? any(22) : 22;
    for (int line = 1; line <= lines; ++line) {
      if (line <= 12) bytes += oneOf(spellings);
      if (line == 13) bytes += " " + std::to_string(any(8));
      if (line == 14 || line == 15) bytes += oneOf(typed);
      if (line == 16) bytes += "V?.?.?";
      if (line >= 17 && line <= 19) bytes += " " + std::to_string(any(7));
      if (line >= 20) bytes += any(2) == 0 ? "E" : "F";
      bytes += "\r\n";
    }
    return scratch.write("a.pwm", bytes);
  }
  std::string anyImage() {
    Block block;
    block.line4210 = wordRecord(0x4210, {any(256), 39, 40, 41, any(256), any(7), any(3), any(9)});
    block.line4220 = wordRecord(0x4220, {9, 0, oneOf(digits), 0, oneOf(digits), 0, '3', 0});
    return scratch.write("a.hex", block.text());
  }

  void act() {
    timing::SetupPanel& setup = lap.setup;
    const std::function<void()> actions[] = {
        [&] { setup.Ut.type(oneOf(typed)); },
        [&] { setup.Tures.type(oneOf(typed)); },
        [&] { setup.Spm.type(oneOf(typed)); },
        [&] { setup.Funkcio.select(any(6)); },
        [&] {
          oneOf(std::array{&setup.Xegesz, &setup.Yegesz, &setup.Zegesz})->click();
        },
        [&] { lap.openDropped(anyFile()); },
        [&] { lap.openDropped(anyImage()); },
        [&] { lap.revert(Comparison::saved, fieldsOfAxis(any(3))); },
        [&] { lap.revert(Comparison::saved, {static_cast<FieldIndex>(any(22))}); },
        [&] { lap.revert(Comparison::saved, allFields()); },
        [&] { lap.copyAxis(any(3)); },
        [&] { (any(2) == 0 ? setup.MBTallando : setup.MBTValtozo).click(); }};
    if (any(5) != 0) return oneOf(actions)();
    controls::SpinButton& spin = setup.FolLe[any(12)];
    for (int n = any(40); n >= 0; --n) any(8) == 0 ? spin.pressUp() : spin.pressDown();
  }

  /// All that an undo is to bring back, with what is shown of it.
  std::vector<std::string> state() const {
    const timing::SetupPanel& setup = lap.setup;
    std::vector<std::string> all = store::pwmTexts(setup, lap.kozos).records;
    const auto bytes = link::setupMessage(setup.spinValues());
    all.emplace_back(bytes.begin(), bytes.end());
    all.insert(all.end(), {lap.kozos.VerFo, lap.kozos.VerAl, lap.kozos.VerRev, setup.Spm.Text,
                           setup.Uthossz.Caption, setup.Cim.Caption});
    return all;
  }

  std::mt19937 random;
  static constexpr std::array spellings{"1", "024", "24", "24.4", "255", "300", "0", "7x", "091"};
  static constexpr std::array<int, 4> digits{'1', '3', '5', 'X'};
  static constexpr std::array typed{"12.5",  "070",  "",  "abc", "1000",
                                    "70000", "0.02", "7", "-1",  "2.5"};
};

TEST(Undo, GivesEachOfAThousandStatesBackAndForthAndBeepsAndAsksNothing) {
  for (unsigned seed = 1; seed <= 2; ++seed) {
    Used used(seed);
    std::vector<std::vector<std::string>> states{used.state()};
    while (states.size() <= 1000) {
      used.act();
      used.lap.revisions.undo.close();
      if (used.state() != states.back()) states.push_back(used.state());
    }
    used.journal.clear();
    for (std::size_t n = states.size() - 1; n-- > 0;) {
      used.lap.undo();
      ASSERT_TRUE(same(used.state(), states[n])) << "seed " << seed << ", back to " << n;
    }
    used.lap.undo();
    EXPECT_EQ(used.lap.Esemeny.Caption.get(), "Nincs mit visszavonni.");
    for (std::size_t n = 1; n < states.size(); ++n) {
      used.lap.redo();
      ASSERT_TRUE(same(used.state(), states[n])) << "seed " << seed << ", again to " << n;
    }
    EXPECT_TRUE(same(used.journal, {}));
    EXPECT_FALSE(used.lap.revisions.undo.canRedo());
  }
}

/// The fields whose bytes or records differ, told from these alone. The byte of the flags has a
/// record for each.
std::set<std::string> differing(const Used& a, const Used& b) {
  const std::string_view bytes = "T1XTFXT2XT3XT1YTFYT2YT3YT1ZTFZT2ZT3Z";
  std::set<std::string> names;
  const auto one = link::setupMessage(a.lap.setup.spinValues());
  const auto other = link::setupMessage(b.lap.setup.spinValues());
  for (std::size_t n = 2; n < 18; ++n) {
    if (one[n] == other[n]) continue;
    names.insert(n < 14 ? std::string(bytes.substr(3 * (n - 2), 3))
                        : std::array{"Funkcio", "Ut", "Ut", "Tures"}[n - 14]);
  }
  for (const FieldIndex field : allFields()) {
    const int record = static_cast<int>(field) + 1;
    if (store::pwmRecord(record, a.lap.setup, a.lap.kozos) !=
        store::pwmRecord(record, b.lap.setup, b.lap.kozos)) {
      names.emplace(fieldName(field));
    }
  }
  return names;
}

TEST(Comparison, DifferencesAreThoseOfTheBytesAndRecordsAndAFileBesideChangesNothing) {
  Used a(7), b(8);
  for (int n = 0; n < 500; ++n) {
    a.act(), b.act();
    if (n % 3 == 0) b.lap.openDropped(a.anyFile()), a.lap.openDropped(a.scratch.path("a.pwm"));
    std::set<std::string> told;
    const auto fields = [](Used& of) { return fieldsOf(of.lap.setup, of.lap.kozos); };
    for (const FieldIndex field : differences(fields(a), fields(b))) told.emplace(fieldName(field));
    ASSERT_EQ(told, differing(a, b)) << n;

    // A saved file beside it is the same but for what the start of a reading makes of it.
    const auto [records, failure] = store::pwmTexts(a.lap.setup, a.lap.kozos);
    if (failure != platform::Failure::None) continue;
    const std::string path = a.scratch.write("beside.pwm", store::pwmLines(records, a.codePage));
    const auto before = a.state();
    std::string fault;
    const auto column = a.lap.revisions.comparison.add(path, fault);
    ASSERT_TRUE(column && fault.empty()) << fault;
    Comparison& comparison = a.lap.revisions.comparison;
    comparison.refresh();
    for (const FieldIndex field : allFields()) {
      const bool splits = records[field].find(',') != std::string::npos;
      const bool refused = timing::Ertek(records[16]) <= 2 && field == 12;
      EXPECT_TRUE(splits || refused || !comparison.differs(*column, field))
          << fieldName(field) << ": " << records[field];
    }
    ASSERT_EQ(comparison.columns().size(), Comparison::firstFile + 1) << "the same file again";
    ASSERT_EQ(a.state(), before);
  }
}

TEST(Comparison, TellsWhatAFileDoesNotHoldAndWhatCantBeRead) {
  Used used(1);
  Comparison& comparison = used.lap.revisions.comparison;
  std::string fault;
  EXPECT_FALSE(comparison.add(used.scratch.path("nincs.pwm"), fault));
  EXPECT_EQ(fault, "nincs.pwm: nincs ilyen fájl.");
  const auto cut = comparison.add(used.scratch.write("cut.pwm", " 91\r\n92\r\n91\r\n"), fault);
  EXPECT_NE(fault.find("idő előtt véget ér"), fault.npos);
  const auto image = comparison.add(used.scratch.write("b.hex", Block().text()), fault);
  ASSERT_TRUE(cut && image && fault.empty());
  const auto differing = [&](std::size_t column) {
    std::string names;
    for (const FieldIndex field : allFields()) {
      if (comparison.differs(column, field)) names += std::string(fieldName(field)) + " ";
    }
    return names;
  };
  EXPECT_EQ(differing(*cut), "TFY ");
  EXPECT_EQ(shownText(comparison.columns()[*cut].fields, 13), "–");
  EXPECT_EQ(shownText(comparison.columns()[*image].fields, 19), "–") << "an image has no flags";
  EXPECT_EQ(differing(*image).find("Verz"), std::string::npos);
  comparison.remove(*cut), comparison.remove(Comparison::saved);
  EXPECT_EQ(comparison.columns().size(), Comparison::firstFile + 1);
  used.lap.revert(Comparison::firstFile, allFields());
  comparison.refresh();
  EXPECT_EQ(differing(Comparison::firstFile), "");
}

TEST(UploadHistory, KeepsEachUploadAndTellsWhatChangedFromOneToTheNext) {
  Used used(1);
  const auto upload = [&] { used.lap.setup.Letolt.click(); };
  upload();
  used.lap.setup.FolLe[3].pressUp(), upload();
  upload();
  used.archive.works = false, upload();
  EXPECT_NE(used.lap.Esemeny.Caption.get().find("előzmények közé nem"), std::string::npos);
  used.scratch.write("kept1", "91\r\n");
  UploadHistory& history = used.lap.revisions.history;
  history.refresh();
  std::vector<std::string> told;
  for (std::size_t n = 0; n < history.size(); ++n) told.push_back(history.changes(n));
  const std::string broken = "Nem olvasható be: a fájl idő előtt véget ér (kód: 62).";
  ASSERT_TRUE(same(told, {"T1 X: 244 → 245", broken, "Az első."}));
  const std::string text = history.text(2);
  EXPECT_TRUE(text.starts_with("2026-11-24 07:00:00, &H378, PCB V4.x\nAz első.\nTF X: 91\n"))
      << text;
  EXPECT_EQ(std::ranges::count(text, '\n'), 2 + 22);
}

}  // namespace
}  // namespace monitra::revisions
