#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace monitra::platform {

/// A Setup file that was kept when it went out.
struct KeptUpload {
  std::string path;
  std::string when;   ///< local time, as "2026-11-24 07:05:32"
  std::string port;   ///< as "&H378"; empty if that isn't known
  std::string board;  ///< as "PCB V4.x"; empty if that isn't known

  bool operator==(const KeptUpload&) const = default;
};

/// What was uploaded in this run and in earlier ones, a Setup file for each.
class UploadArchive {
 public:
  virtual ~UploadArchive() = default;

  /// Keeps a file with this content, and lets the oldest go if there are too many. False if it
  /// can't be kept.
  virtual bool keep(std::string_view content, const std::string& port,
                    const std::string& board) = 0;

  /// The oldest first.
  virtual std::vector<KeptUpload> list() = 0;
};

/// Keeps nothing, and says that it has.
class NoArchive : public UploadArchive {
 public:
  bool keep(std::string_view /*content*/, const std::string& /*port*/,
            const std::string& /*board*/) override {
    return true;
  }
  std::vector<KeptUpload> list() override { return {}; }
};

}  // namespace monitra::platform
