#include <sched.h>
#include <sys/stat.h>

#include "host/host_files.h"
#include "host/pacer.h"
#include "host/windows1250.h"
#include "support/contracts.h"
#include "support/faulty_files.h"
#include "support/journal.h"
#include "support/rows.h"
#include "support/scratch.h"

namespace monitra::host {
namespace {

using namespace support;
using platform::Failure;

struct Host : testing::Test {
  Failure read(const std::string& name) { return files.openForReading(scratch.path(name), reader); }
  Failure write(const std::string& name) {
    return files.openForWriting(scratch.path(name), writer);
  }

  Scratch scratch;
  std::string file = scratch.write("Info.txt", "abc");
  HostFiles files;
  std::unique_ptr<platform::ByteReader> reader;
  std::unique_ptr<platform::ByteWriter> writer;
};

TEST_F(Host, FilesAreFoundByTheirExactNameAndEveryFailureHasItsCode) {
  ASSERT_EQ(::mkfifo(scratch.path("cso").c_str(), 0600), 0);
  std::filesystem::create_directory(scratch.path("mappa"));
  std::filesystem::create_symlink("Info.txt", scratch.path("lanc"));
  std::filesystem::create_symlink("sehol", scratch.path("szakadt"));
  const auto code = [](Failure failure) { return std::to_string(static_cast<int>(failure)); };
  for (const Row& row : rows("files")) {
    const std::string path = scratch.path(row[0]);
    EXPECT_EQ((Row{row[0], files.Dir(path), code(read(row[0])),
                   code(files.createForWriting(path, writer)), code(write(row[0]))}),
              row);
  }
  EXPECT_EQ(read(std::string(300, 'x')), Failure::PathNotFound);
}

TEST_F(Host, FilesKeepTheirContractAndAFullDiskIsTold) {
  filesContract(files, scratch.path("uj"));
  FaultyFiles withoutFaults;
  filesContract(withoutFaults, scratch.path("uj"));
  ASSERT_EQ(write("/dev/full"), Failure::None);
  EXPECT_EQ(writer->write("x"), Failure::DiskFull);
  EXPECT_EQ(writer->close(), Failure::None) << "a device has nothing to keep";
}

TEST_F(Host, WhatPermissionsForbidIsAnAccessFailure) {
  const uid_t before = ::geteuid();
  ::chmod(file.c_str(), 0);
  ::chmod(scratch.path().c_str(), 0111);
  EXPECT_EQ(::seteuid(before == 0 ? 65534 : before), 0) << "permissions don't bind root";
  EXPECT_EQ(files.Dir(file), "Info.txt") << "in a folder that can't be listed";
  EXPECT_EQ(read("Info.txt"), Failure::PathFileAccess);
  EXPECT_EQ(::seteuid(before), 0);
}

TEST(Windows1250, RoundTripsEveryByteAndKnowsTheHungarianLetters) {
  const Windows1250 codePage;
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(codePage.fromUtf8(codePage.toUtf8(all)), all);
  EXPECT_EQ(codePage.toUtf8("\xC1rv\xEDzt\xFBr\xF5 t\xFCk\xF6rf\xFAr\xF3g\xE9p \x80\x81"),
            "Árvíztűrő tükörfúrógép €\u0081");
  EXPECT_EQ(codePage.fromUtf8("a→b😀c\xF0"), "a?b?c?");
}

TEST(Sleepers, KeepTheirContractAndTheRealOneDoesNotSpin) {
  Pacer pacer;
  Journal journal;
  JournalPort fake(journal);
  sleeperContract(fake);
  const std::clock_t used = std::clock();
  sleeperContract(pacer);
  EXPECT_LE(std::clock() - used, CLOCKS_PER_SEC / 50);
}

TEST(Pacer, IsPunctualWhereTheSystemGrantsIt) {
  sched_param priority{.sched_priority = 1};
  const bool granted = ::sched_setscheduler(0, SCHED_FIFO, &priority) == 0;
  priority.sched_priority = 0;
  ::sched_setscheduler(0, SCHED_OTHER, &priority);
  Pacer pacer;
  for (const bool on : {true, false}) {
    pacer.bePunctual(on);
    EXPECT_EQ(::sched_getscheduler(0), granted && on ? SCHED_FIFO : SCHED_OTHER);
  }
}

}  // namespace
}  // namespace monitra::host
