#pragma once

#include <string>
#include <vector>

#include "platform/files.h"

namespace monitra::firmware {

/// What is wrong with an image, and where.
struct ImageFault {
  long line;           ///< from 1; 0: with the file as a whole
  std::string reason;  ///< in Hungarian
  bool decisive;       ///< of the parameter block, or of the file as a whole
};

struct ImageReport {
  static constexpr std::size_t mostFaults = 20;

  /// Why the file could not be read to its end.
  platform::Failure failure = platform::Failure::None;
  long records = 0;
  long blockLine = 0;              ///< where the parameter block begins; 0: there is none
  bool blockIsWhole = false;       ///< a patched copy of the block's records has valid records
  long faultCount = 0;             ///< of all faults
  std::vector<ImageFault> faults;  ///< the first of them, and all decisive ones
};

/// Checks each record of an Intel HEX file for its form, its length and its checksum, and the file
/// for its closing record and the parameter block. Reads the file once and changes nothing.
ImageReport checkImage(platform::Files& files, const std::string& path);

}  // namespace monitra::firmware
