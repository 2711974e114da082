#pragma once

#include "platform/files.h"

namespace monitra::host {

/// The files of this computer. Every failure of the system is mapped to its code here.
class HostFiles : public platform::Files {
 public:
  std::string Dir(const std::string& path) override;
  platform::Failure openForReading(const std::string& path,
                                   std::unique_ptr<platform::ByteReader>& file) override;
  platform::Failure openForWriting(const std::string& path,
                                   std::unique_ptr<platform::ByteWriter>& file) override;
  platform::Failure createForWriting(const std::string& path,
                                     std::unique_ptr<platform::ByteWriter>& file) override;
  platform::Failure remove(const std::string& path) override;
};

}  // namespace monitra::host
