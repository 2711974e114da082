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
  /// Whether this one still succeeds of so many.
  static bool takesOne(int& left) { return left != 0 && (left < 0 || left-- > 0); }

  struct Reader : platform::ByteReader {
    Reader(std::unique_ptr<platform::ByteReader> file, FaultyFiles& of)
        : real(std::move(file)), faults(of) {}
    platform::Failure read(std::string& chunk) override {
      return takesOne(faults.readsThatSucceed) ? real->read(chunk) : platform::Failure::DeviceIo;
    }

    std::unique_ptr<platform::ByteReader> real;
    FaultyFiles& faults;
  };

  struct Writer : platform::ByteWriter {
    Writer(std::unique_ptr<platform::ByteWriter> file, FaultyFiles& of)
        : real(std::move(file)), faults(of) {}
    platform::Failure write(std::string_view bytes) override {
      return takesOne(faults.writesThatSucceed) ? real->write(bytes) : platform::Failure::DiskFull;
    }
    platform::Failure close() override {
      const platform::Failure failure = real->close();
      return faults.closeFails != platform::Failure::None ? faults.closeFails : failure;
    }

    std::unique_ptr<platform::ByteWriter> real;
    FaultyFiles& faults;
  };

  platform::Failure wrapped(platform::Failure opened, std::unique_ptr<platform::ByteWriter>& file) {
    if (opened == platform::Failure::None) file = std::make_unique<Writer>(std::move(file), *this);
    return opened;
  }

  host::HostFiles real_;
};

}  // namespace monitra::support
