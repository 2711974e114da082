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
  for (const char* content :
       {"", "{\"Setup\": {\"LPT\"", "[1]", "{\"Setup\": 3}", "{\"Setup\": {\"LPT\": 1}}"}) {
    scratch.write("a.json", content);
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), "0") << content;
    settings.SaveSetting("a", "Setup", "LPT", " 1");
    EXPECT_EQ(settings.GetSetting("a", "Setup", "LPT", "0"), " 1") << content;
  }
  JsonSettings("/proc/monitra").SaveSetting("a", "Setup", "LPT", " 1");
}

}  // namespace
}  // namespace monitra::settings
