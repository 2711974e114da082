#include <gtest/gtest.h>

#include "settings/json_settings.h"
#include "support/scratch.h"

namespace monitra::settings {
namespace {

TEST(JsonSettings, KeepsTextsByApplicationAndKeyWhateverItsFileHolds) {
  const support::Scratch scratch;
  JsonSettings settings(scratch.path("uj/monitra"));
  for (const std::string value : {" 1", "", "\"ő\n"}) {
    settings.SaveSetting("Monitra Setup", "Setup", "LPT", value);
    settings.SaveSetting("a", "Setup", "LPT", " 2");
    EXPECT_EQ(settings.GetSetting("Monitra Setup", "Setup", "LPT", "0"), value);
  }
  EXPECT_EQ(settings.GetSetting("Monitra Setup", "Setup", "Seb", "100"), "100");
  EXPECT_FALSE(settings.isDamaged("nincs"));
  // What can't be made out at all is kept beside the new file.
  const std::string file = "uj/monitra/a.json", bad = scratch.path(file + ".bad");
  for (const auto& [content, damaged] :
       {std::pair("", true), std::pair("{\"Setup\": {\"PCB\": \"32\",}}", true),
        std::pair("{\"Setup\": 3}", false), std::pair("{\"Setup\": {\"LPT\": 1}}", false)}) {
    SCOPED_TRACE(content);
    scratch.write(file, content);
    std::filesystem::remove(bad);
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), "0");
    EXPECT_EQ(settings.isDamaged("a"), damaged);
    settings.SaveSetting("a", "Setup", "LPT", " 1");
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1");
    EXPECT_EQ(std::filesystem::exists(bad), damaged);
  }
  std::filesystem::create_symlink("/dev/full", scratch.path(file + ".new"));
  settings.SaveSetting("a", "Setup", "LPT", " 3");
  EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1") << "a full disk leaves the old";
  EXPECT_FALSE(std::filesystem::is_symlink(scratch.path(file + ".new")));
  EXPECT_NO_THROW(JsonSettings("/proc/monitra").SaveSetting("a", "Setup", "LPT", " 1"));
}

}  // namespace
}  // namespace monitra::settings
