#pragma once

#include <memory>
#include <string>

#include "host/host_files.h"

namespace monitra::support {

/// The computer's own files, where an opening can be forbidden, a disk can go away after some reads
/// or be full after some writes, and a close can fail.
class FaultyFiles : public platform::Files {
 public:
  std::string Dir(const std::string& path) override { return real_.Dir(path); }

  platform::Failure openForReading(const std::string& path,
                                   std::unique_ptr<platform::ByteReader>& file) override {
    if (openingFails != platform::Failure::None) return openingFails;
    const platform::Failure opened = real_.openForReading(path, file);
    if (opened == platform::Failure::None) file = std::make_unique<Reader>(std::move(file), *this);
    return opened;
  }

  platform::Failure openForWriting(const std::string& path,
                                   std::unique_ptr<platform::ByteWriter>& file) override {
    return wrapped(real_.openForWriting(path, file), file);
  }

  platform::Failure createForWriting(const std::string& path,
                                     std::unique_ptr<platform::ByteWriter>& file) override {
    return wrapped(real_.createForWriting(path, file), file);
  }

  platform::Failure openingFails = platform::Failure::None;  ///< for reading
  int readsThatSucceed = -1;                                 ///< -1: all
  int writesThatSucceed = -1;                                ///< -1: all
  platform::Failure closeFails = platform::Failure::None;

 private:
  class Reader : public platform::ByteReader {
   public:
    Reader(std::unique_ptr<platform::ByteReader> real, FaultyFiles& faults)
        : real_(std::move(real)), faults_(faults) {}

    platform::Failure read(std::string& chunk) override {
      if (faults_.readsThatSucceed == 0) return platform::Failure::DeviceIo;
      if (faults_.readsThatSucceed > 0) --faults_.readsThatSucceed;
      return real_->read(chunk);
    }

   private:
    std::unique_ptr<platform::ByteReader> real_;
    FaultyFiles& faults_;
  };

  class Writer : public platform::ByteWriter {
   public:
    Writer(std::unique_ptr<platform::ByteWriter> real, FaultyFiles& faults)
        : real_(std::move(real)), faults_(faults) {}

    platform::Failure write(std::string_view bytes) override {
      if (faults_.writesThatSucceed == 0) return platform::Failure::DiskFull;
      if (faults_.writesThatSucceed > 0) --faults_.writesThatSucceed;
      return real_->write(bytes);
    }
    platform::Failure close() override {
      const platform::Failure failure = real_->close();
      return faults_.closeFails != platform::Failure::None ? faults_.closeFails : failure;
    }

   private:
    std::unique_ptr<platform::ByteWriter> real_;
    FaultyFiles& faults_;
  };

  platform::Failure wrapped(platform::Failure opened, std::unique_ptr<platform::ByteWriter>& file) {
    if (opened == platform::Failure::None) file = std::make_unique<Writer>(std::move(file), *this);
    return opened;
  }

  host::HostFiles real_;
};

}  // namespace monitra::support
