#include <gtest/gtest.h>

#include "settings/json_settings.h"
#include "support/scratch.h"

namespace monitra::settings {
namespace {

TEST(JsonSettings, KeepsTextsByApplicationAndKey) {
  const support::Scratch scratch;
  const std::string folder = scratch.path("uj/monitra");
  for (const std::string value : {" 1", "", "\"ő\n"}) {
    JsonSettings(folder).SaveSetting("Monitra Setup", "Setup", "LPT", value);
    JsonSettings(folder).SaveSetting("monitra-szimulator", "Setup", "LPT", " 2");
    EXPECT_EQ(JsonSettings(folder).GetSetting("Monitra Setup", "Setup", "LPT", "0"), value);
  }
  EXPECT_EQ(JsonSettings(folder).GetSetting("Monitra Setup", "Setup", "Seb", "100"), "100");
}

TEST(JsonSettings, AFileThatCannotBeUsedGivesTheDefaultsAndIsReplaced) {
  const support::Scratch scratch;
  JsonSettings settings(scratch.path());
  // What can't be made out at all is kept beside the new file.
  for (const auto& [content, damaged] :
       {std::pair("", true), std::pair("{\"Setup\": {\"PCB\": \"32\",}}", true),
        std::pair("[1]", true), std::pair("{\"Setup\": 3}", false),
        std::pair("{\"Setup\": {\"LPT\": 1}}", false)}) {
    scratch.write("a.json", content);
    std::filesystem::remove(scratch.path("a.json.bad"));
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), "0") << content;
    EXPECT_EQ(settings.isDamaged("a"), damaged) << content;
    settings.SaveSetting("a", "Setup", "LPT", " 1");
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1") << content;
    EXPECT_EQ(std::filesystem::exists(scratch.path("a.json.bad")), damaged) << content;
  }
  EXPECT_FALSE(settings.isDamaged("nincs"));
  std::filesystem::create_directory(scratch.path("mappa.json"));
  EXPECT_EQ(settings.GetSetting("mappa", "Setup", "LPT", "0"), "0");
  JsonSettings("/proc/monitra").SaveSetting("a", "Setup", "LPT", " 1");
}

}  // namespace
}  // namespace monitra::settings
