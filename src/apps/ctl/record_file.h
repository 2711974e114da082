#pragma once

#include <fstream>
#include <memory>
#include <string>

#include "host/host_files.h"

namespace monitra::ctl {

/// The file for the record of an upload. A file that is there is only replaced with leave, and only
/// by a whole record; of a failed one nothing stays. Devices and pipes are written directly.
class RecordFile {
 public:
  RecordFile(std::string path, bool replaces) : path_(std::move(path)), replaces_(replaces) {}

  /// What stands against a record of this Setup file there; empty if nothing does. Changes nothing.
  std::string prepare(const std::string& setupFile);

  /// Writes the record where prepare() found nothing against it. What went wrong; empty if nothing
  /// did.
  std::string write(const std::string& record);

 private:
  std::string create(std::unique_ptr<platform::ByteWriter>& file);
  std::string removed(const std::string& what) const;
  std::string text(const std::string& what) const;

  std::string path_;
  bool replaces_;
  std::string target_;   ///< the file that a link leads to
  std::string written_;  ///< the target, or beside one that is there
  bool isThere_ = false;
  std::ofstream device_;
  host::HostFiles files_;
};

}  // namespace monitra::ctl
