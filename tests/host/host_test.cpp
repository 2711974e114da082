#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/executable.h"
#include "host/host_files.h"
#include "host/pacer.h"
#include "host/windows1250.h"
#include "support/scratch.h"

namespace monitra::host {
namespace {

using platform::Failure;

struct Host : testing::Test {
  Host() {
    std::filesystem::create_directory(scratch.path("mappa"));
    scratch.write("Info.txt", "abc");
  }
  Failure read(const std::string& path) { return files.openForReading(path, reader); }
  Failure write(const std::string& path) { return files.openForWriting(path, writer); }
  Failure create(const std::string& name) {
    return files.createForWriting(scratch.path(name), writer);
  }

  support::Scratch scratch;
  HostFiles files;
  std::unique_ptr<platform::ByteReader> reader;
  std::unique_ptr<platform::ByteWriter> writer;
};

TEST_F(Host, DirFindsFilesByTheirExactName) {
  std::filesystem::create_symlink("Info.txt", scratch.path("lanc"));
  std::filesystem::create_symlink("sehol", scratch.path("szakadt"));
  EXPECT_EQ(files.Dir(scratch.path("Info.txt")), "Info.txt");
  EXPECT_EQ(files.Dir(scratch.path("lanc")), "lanc");
  for (const char* name : {"INFO.TXT", "info", "mappa", "szakadt", "mappa/x", "Info.txt/x", ""}) {
    EXPECT_EQ(files.Dir(scratch.path() + "/" + name), "") << name;
  }
}

TEST_F(Host, EveryFailureHasItsCode) {
  ASSERT_EQ(::mkfifo(scratch.path("cso").c_str(), 0600), 0);
  EXPECT_EQ(read(scratch.path("nincs")), Failure::FileNotFound);
  EXPECT_EQ(read(scratch.path("mappa")), Failure::PathFileAccess);
  EXPECT_EQ(read(scratch.path("cso")), Failure::PathFileAccess) << "it would never end";
  EXPECT_EQ(read(scratch.path("Info.txt/x")), Failure::PathNotFound);
  EXPECT_EQ(write(scratch.path("mappa")), Failure::PathFileAccess);
  EXPECT_EQ(write(scratch.path("nincs/x")), Failure::PathNotFound);
  std::filesystem::create_symlink("sehol", scratch.path("szakadt"));
  for (const char* taken : {"Info.txt", "szakadt", "cso"}) {
    EXPECT_EQ(create(taken), Failure::FileExists) << taken;
  }
  EXPECT_EQ(create("mappa"), Failure::PathFileAccess);
  EXPECT_EQ(create("nincs/x"), Failure::PathNotFound);
  ASSERT_EQ(create("uj"), Failure::None);
  EXPECT_EQ(writer->write("x"), Failure::None);
  EXPECT_EQ(scratch.read("uj") + scratch.read("Info.txt"), "xabc");
  ASSERT_EQ(write("/dev/full"), Failure::None);
  EXPECT_EQ(writer->write("x"), Failure::DiskFull);
  ASSERT_EQ(read(scratch.path("Info.txt")), Failure::None);
  for (const std::string expected : {"abc", ""}) {
    std::string chunk;
    EXPECT_EQ(reader->read(chunk), Failure::None);
    EXPECT_EQ(chunk, expected);
  }
}

TEST_F(Host, WhatPermissionsForbidIsAnAccessFailure) {
  constexpr uid_t nobody = 65534;
  const std::string file = scratch.write("zart", "x");
  ::chmod(file.c_str(), 0);
  ::chmod(scratch.path().c_str(), 0500);
  const bool root = ::geteuid() == 0;  // whom permissions don't bind
  if (root) {
    ASSERT_EQ(::chown(scratch.path().c_str(), nobody, nobody), 0);
    ASSERT_EQ(::seteuid(nobody), 0);
  }
  EXPECT_EQ(files.Dir(file), "zart");
  EXPECT_EQ(read(file), Failure::PathFileAccess);
  EXPECT_EQ(write(scratch.path("uj")), Failure::PathFileAccess);
  EXPECT_EQ(create("uj"), Failure::PathFileAccess);
  ::chmod(scratch.path().c_str(), 0100);
  EXPECT_EQ(files.Dir(file), "zart") << "in a folder that can't be listed";
  if (root) {
    ASSERT_EQ(::seteuid(0), 0);
  }
}

TEST(Windows1250, RoundTripsEveryByteAndKnowsTheHungarianLetters) {
  const Windows1250 codePage;
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(codePage.fromUtf8(codePage.toUtf8(all)), all);
  EXPECT_EQ(codePage.toUtf8("\xC1rv\xEDzt\xFBr\xF5 t\xFCk\xF6rf\xFAr\xF3g\xE9p \x80"),
            "Árvíztűrő tükörfúrógép €");
  EXPECT_EQ(codePage.fromUtf8("a→b😀c\xF0"), "a?b?c?");
}

TEST(Executable, NamesItself) {
  const platform::ProgramIdentity program = programIdentity("Cím");
  EXPECT_EQ(program.EXEName, "test_host");
  EXPECT_TRUE(std::filesystem::exists(program.Path + "/test_host"));
}

TEST(Pacer, NoWaitIsShort) {
  using Clock = std::chrono::steady_clock;
  Pacer pacer;
  for (const int milliseconds : {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 5}) {
    const Clock::time_point start = Clock::now();
    pacer.Sleep(milliseconds);
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(milliseconds));
  }
}

}  // namespace
}  // namespace monitra::host
