#pragma once

#include <gtest/gtest.h>
#include <string>

#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/settings_store.h"
#include "platform/sleeper.h"

/// What every implementation of an interface promises its callers: for the real one and for those
/// that tests put into its place.
namespace monitra::support {

/// The path is of a file in a folder that may be written, and that isn't there.
inline void filesContract(platform::Files& files, const std::string& path) {
  using platform::Failure;
  const std::string title = path.substr(path.find_last_of('/') + 1);
  std::unique_ptr<platform::ByteReader> reader;
  std::unique_ptr<platform::ByteWriter> writer;
  EXPECT_EQ(files.remove(path), Failure::FileNotFound);
  for (const std::string content : {"abc", "x"}) {
    EXPECT_EQ(files.Dir(path), content == "abc" ? "" : title);
    ASSERT_EQ(content == "abc" ? files.createForWriting(path, writer)
                               : files.openForWriting(path, writer),
              Failure::None);
    EXPECT_EQ(files.createForWriting(path, writer), Failure::FileExists) << "and stays open";
    for (const char byte : content) EXPECT_EQ(writer->write({&byte, 1}), Failure::None);
    EXPECT_EQ(writer->close(), Failure::None);
    ASSERT_EQ(files.openForReading(path, reader), Failure::None);
    for (const std::string& expected : {content, std::string{}}) {
      std::string chunk = "old";
      EXPECT_EQ(reader->read(chunk), Failure::None);
      EXPECT_EQ(chunk, expected);
    }
  }
  EXPECT_EQ(files.remove(path), Failure::None);
  EXPECT_EQ(files.Dir(path), "");
}

/// The store is empty.
inline void settingsContract(platform::SettingsStore& store) {
  const auto get = [&store](const char* application, const char* section, const char* key) {
    return store.GetSetting(application, section, key, "none");
  };
  store.SaveSettings("Monitra Setup", "Setup", {{"LPT", " 1"}, {"Seb", "\"ő\n"}, {"Inv0", ""}});
  store.SaveSetting("Monitra Setup", "Setup", "LPT", " 2");
  store.SaveSetting("Monitra Setup", "Other", "LPT", " 3");
  store.SaveSetting("a", "Setup", "LPT", " 4");
  EXPECT_EQ(get("Monitra Setup", "Setup", "LPT") + get("Monitra Setup", "Setup", "Seb") +
                get("Monitra Setup", "Setup", "Inv0") + get("Monitra Setup", "Other", "LPT") +
                get("a", "Setup", "LPT") + get("a", "Setup", "Seb") + get("b", "Setup", "LPT"),
            " 2\"ő\n 3 4nonenone");
  EXPECT_FALSE(store.isDamaged("a") || store.isDamaged("b"));
}

inline void sleeperContract(platform::Sleeper& sleeper) {
  for (const int milliseconds : {1, 1, 1, 1, 1, 0, 20}) {
    const std::chrono::nanoseconds before = sleeper.now();
    sleeper.Sleep(milliseconds);
    EXPECT_GE(sleeper.now() - before, std::chrono::milliseconds(milliseconds));
  }
}

/// Nobody chooses a name in the dialog where it is shown.
inline void givenNameContract(platform::FileDialog& dialog) {
  for (const auto show : {&platform::FileDialog::ShowOpen, &platform::FileDialog::ShowSave}) {
    const platform::GivenName name(dialog, "/a/b.pwm");
    EXPECT_EQ((dialog.*show)(), platform::Failure::None);
    EXPECT_EQ(dialog.FileName + dialog.FileTitle, "/a/b.pwmb.pwm");
    EXPECT_EQ((dialog.*show)(), platform::Failure::Cancel) << "only once";
  }
  { const platform::GivenName unused(dialog, "/a/c.pwm"); }
  EXPECT_EQ(dialog.ShowOpen(), platform::Failure::Cancel) << "not behind its end";
  EXPECT_EQ(dialog.FileName, "/a/b.pwm");
}

}  // namespace monitra::support
