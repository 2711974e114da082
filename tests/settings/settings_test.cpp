#include <csignal>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "settings/json_settings.h"
#include "settings/upload_folder.h"
#include "support/contracts.h"
#include "support/journal.h"
#include "support/scratch.h"

namespace monitra::settings {
namespace {

struct Settings : testing::Test {
  const support::Scratch scratch;
  const std::string folder = scratch.path("uj/monitra"), file = "uj/monitra/a.json",
                    bad = scratch.path("uj/monitra/a.json.bad");
  JsonSettings settings{folder};
};

TEST_F(Settings, KeepTheirContract) {
  support::settingsContract(settings);
  support::Journal journal;
  support::JournalSettings fake(journal);
  support::settingsContract(fake);
  JsonSettings("/proc/monitra").SaveSetting("a", "Setup", "LPT", " 1");
  JsonSettings("").SaveSetting("a", "Setup", "LPT", " 1");
  EXPECT_FALSE(JsonSettings("").isDamaged("a"));
}

TEST(SettingsFolder, IsInTheHomeThatTheSystemNamesWhereTheEnvironmentNamesNone) {
  for (const char* const name : {"HOME", "XDG_CONFIG_HOME"}) ::setenv(name, "nowhere", 1);
  EXPECT_EQ(userSettingsFolder(), ::getpwuid(::getuid())->pw_dir + std::string("/.config/monitra"));
  ::setenv("HOME", "/a", 1);
  EXPECT_EQ(userSettingsFolder(), "/a/.config/monitra");
}

TEST_F(Settings, UploadsAreKeptByTheirMomentAndNoMoreThanAFewHundred) {
  ::setenv("TZ", "UTC", 1);
  std::time_t now = 1'700'000'000;
  UploadFolder uploads(folder, [&now] { return now; });
  EXPECT_TRUE(uploads.list().empty());
  EXPECT_TRUE(uploads.keep("a", "&H378", "PCB V4.x") && uploads.keep("b", "&H278", "PCB V3.2"));
  now -= 3600;  // the clock was put back
  EXPECT_TRUE(uploads.keep("c", "", ""));
  scratch.write("uj/monitra/sajat.pwm", "");
  const auto first = uploads.list();
  ASSERT_EQ(first.size(), 3U);
  EXPECT_EQ(first[0], (platform::KeptUpload{folder + "/2023-11-14_22-13-20.pwm",
                                            "2023-11-14 22:13:20", "&H378", "PCB V4.x"}));
  EXPECT_EQ(first[1].path, folder + "/2023-11-14_22-13-20_2.pwm");
  EXPECT_EQ(first[2].when, "2023-11-14 21:13:20") << "in the order in which they came";
  for (std::size_t n = 0; n < UploadFolder::most; ++n)
    uploads.keep(std::to_string(n), "", ""), ++now;
  EXPECT_EQ(uploads.list().size(), UploadFolder::most);
  EXPECT_FALSE(std::filesystem::exists(first[2].path));
  EXPECT_TRUE(std::filesystem::exists(folder + "/sajat.pwm"));

  scratch.write("uj/monitra/lista.json", "[{\"file\": 3}, 4");
  EXPECT_TRUE(uploads.list().size() == UploadFolder::most && uploads.list()[0].port.empty());
  EXPECT_TRUE(uploads.keep("z", "&H3BC", ""));
  EXPECT_EQ(uploads.list().back().port, "&H3BC");
  EXPECT_FALSE(UploadFolder("").keep("a", "", "") || UploadFolder("/proc/a").keep("a", "", ""));
  ::setenv("XDG_DATA_HOME", "/b", 1);
  EXPECT_EQ(uploadFolder("x"), "/b/monitra/x/feltoltesek");
}

TEST_F(Settings, WhateverTheFileIsTheNextSaveMakesOneAndKeepsWhatCannotBeMadeOut) {
  settings.SaveSetting("a", "Setup", "LPT", " 1");
  const auto write = [this](const std::string& bytes) { scratch.write(file, bytes); };
  const std::pair<std::function<void()>, bool> files[] = {
      {[&] { write(""); }, true},
      {[&] { write("{\"Setup\": {\"PCB\": \"32\",}}"); }, true},
      {[&] { write("{\"Setup\": 3}"); }, false},
      {[&] { write("{\"Setup\": {\"LPT\": 1}}"); }, false},
      {[&] { write(std::string(100000, '[')); }, true},
      {[&] { write("{\"a\":" + std::string(9999, '[') + std::string(9999, ']') + "}"); }, false},
      {[&] { write("{\"Setup\": {\"LPT\": \" 1\"}}" + std::string(1 << 20, ' ')); }, true},
      {[&] { ::mkfifo(scratch.path(file).c_str(), 0600); }, true},
      {[&] { std::filesystem::create_directory(scratch.path(file)); }, true}};
  for (const auto& [make, damaged] : files) {
    SCOPED_TRACE(&make - &files[0].first);
    for (const std::string& old : {scratch.path(file), bad}) std::filesystem::remove_all(old);
    make();
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), "0");
    EXPECT_EQ(settings.isDamaged("a"), damaged);
    settings.SaveSetting("a", "Setup", "LPT", " 1");
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1");
    EXPECT_EQ(std::filesystem::exists(bad), damaged);
  }
}

TEST_F(Settings, AFullDiskLeavesTheOldFileAndALinkStaysOne) {
  settings.SaveSetting("a", "Setup", "LPT", " 1");
  std::filesystem::rename(scratch.path(file), scratch.path("valahol.json"));
  std::filesystem::create_symlink(scratch.path("valahol.json"), scratch.path(file));
  ::chmod(scratch.path("valahol.json").c_str(), 0640);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, SIG_IGN);
  for (const rlim_t most : {0, 9}) {  // bytes of a file
    const rlimit full{most, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &full);
    settings.SaveSetting("a", "Setup", "LPT", " 3");
  }
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1");
  settings.SaveSetting("a", "Setup", "Seb", "7");
  EXPECT_TRUE(std::filesystem::is_symlink(scratch.path(file)));
  EXPECT_EQ(scratch.read("valahol.json"),
            "{\n  \"Setup\": {\n    \"LPT\": \" 1\",\n    \"Seb\": \"7\"\n  }\n}\n");
  EXPECT_EQ(std::filesystem::status(scratch.path("valahol.json")).permissions(),
            std::filesystem::perms{0640});
  int left = 0;
  for ([[maybe_unused]] const auto& each : std::filesystem::directory_iterator(folder)) ++left;
  EXPECT_EQ(left, 1) << "the link";
}

TEST_F(Settings, WhatCouldNotBeReadOnceIsToldAndNothingStoredOverIt) {
  settings.SaveSetting("a", "Setup", "PCB", "32");
  const std::string before = scratch.read(file);
  std::filesystem::rename(scratch.path(file), scratch.path("valahol.json"));
  std::filesystem::create_symlink("a.json", scratch.path(file));  // a link to itself
  EXPECT_EQ(settings.GetSetting("a", "Setup", "PCB", "40"), "40");
  std::filesystem::rename(scratch.path("valahol.json"), scratch.path(file));
  EXPECT_TRUE(settings.isDamaged("a"));
  settings.SaveSetting("a", "Setup", "PCB", "40");
  EXPECT_EQ(scratch.read(file), before);
}

TEST_F(Settings, CopiesThatEndTogetherLoseNothing) {
  settings.SaveSetting("a", "Setup", "PCB", "32");
  constexpr int copies = 3, rounds = 100;
  for (int copy = 0; copy < copies; ++copy) {
    if (::fork() != 0) continue;
    for (int n = 1; n <= rounds; ++n) {
      settings.SaveSettings("a", "Setup", {{"Seb" + std::to_string(copy), std::to_string(n)}});
    }
    ::_exit(0);
  }
  while (::wait(nullptr) > 0) {
  }
  EXPECT_EQ(settings.GetSetting("a", "Setup", "PCB", ""), "32");
  for (const char* key : {"Seb0", "Seb1", "Seb2"}) {
    EXPECT_EQ(settings.GetSetting("a", "Setup", key, ""), "100");
  }
}

}  // namespace
}  // namespace monitra::settings
