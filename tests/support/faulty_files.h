#pragma once

#include <functional>
#include <memory>
#include <string>

#include "host/host_files.h"

namespace monitra::support {

/// The computer's own files, of whose calls chosen ones fail. A write that fails has written half.
class FaultyFiles : public platform::Files {
 public:
  using Failure = platform::Failure;
  enum class Call { Look, Open, Create, Remove, Read, Write, Close };

  std::string Dir(const std::string& path) override {
    return fault(Call::Look) != Failure::None ? std::string{} : real_.Dir(path);
  }
  Failure openForReading(const std::string& path,
                         std::unique_ptr<platform::ByteReader>& file) override {
    const Failure failure = tried(Call::Open, [&] { return real_.openForReading(path, file); });
    if (failure == Failure::None) file = std::make_unique<Reader>(std::move(file), *this);
    return failure;
  }
  Failure openForWriting(const std::string& path,
                         std::unique_ptr<platform::ByteWriter>& file) override {
    return wrapped(tried(Call::Create, [&] { return real_.openForWriting(path, file); }), file);
  }
  Failure createForWriting(const std::string& path,
                           std::unique_ptr<platform::ByteWriter>& file) override {
    return wrapped(tried(Call::Create, [&] { return real_.createForWriting(path, file); }), file);
  }
  Failure remove(const std::string& path) override {
    return tried(Call::Remove, [&] { return real_.remove(path); });
  }

  /// From now on such calls fail so behind as many that don't.
  void fail(Call failing, Failure how, int behind = 0) {
    fault = [=](Call call) mutable {
      return call != failing || behind-- > 0 ? Failure::None : how;
    };
  }
  void mend() {
    fault = [](Call) { return Failure::None; };
  }

  /// Asked ahead of each call; what it gives but None the call comes to.
  std::function<Failure(Call)> fault = [](Call) { return Failure::None; };

 private:
  struct Reader : platform::ByteReader {
    Reader(std::unique_ptr<platform::ByteReader> file, FaultyFiles& of)
        : real(std::move(file)), files(of) {}
    Failure read(std::string& chunk) override {
      return files.tried(Call::Read, [&] { return real->read(chunk); });
    }
    std::unique_ptr<platform::ByteReader> real;
    FaultyFiles& files;
  };
  struct Writer : platform::ByteWriter {
    Writer(std::unique_ptr<platform::ByteWriter> file, FaultyFiles& of)
        : real(std::move(file)), files(of) {}
    Failure write(std::string_view bytes) override {
      const Failure failure = files.fault(Call::Write);
      real->write(failure == Failure::None ? bytes : bytes.substr(0, bytes.size() / 2));
      return failure;
    }
    Failure close() override {
      const Failure closed = real->close();
      return files.tried(Call::Close, [closed] { return closed; });
    }
    std::unique_ptr<platform::ByteWriter> real;
    FaultyFiles& files;
  };

  Failure tried(Call call, const std::function<Failure()>& real) const {
    const Failure failure = fault(call);
    return failure != Failure::None ? failure : real();
  }
  Failure wrapped(Failure opened, std::unique_ptr<platform::ByteWriter>& file) {
    if (opened == Failure::None) file = std::make_unique<Writer>(std::move(file), *this);
    return opened;
  }

  host::HostFiles real_;
};

}  // namespace monitra::support
