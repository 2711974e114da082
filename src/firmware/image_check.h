#pragma once

#include <cstddef>
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
  /// Why the file could not be read to its end.
  platform::Failure failure = platform::Failure::None;
  long records = 0;                ///< lines that begin as one
  long blockLine = 0;              ///< where the parameter block begins; 0: there is none
  bool blockIsSound = false;       ///< its records are whole and in place, checksums apart
  long faultCount = 0;             ///< of all faults
  std::vector<ImageFault> faults;  ///< the first of them, and all decisive ones
};

/// Checks each record of an Intel HEX file for its form, its length and its checksum, and the file
/// for its closing record and the parameter block. Reads the file once and changes nothing.
/// Up to so many faults are kept.
ImageReport checkImage(platform::Files& files, const std::string& path,
                       std::size_t mostFaults = 20);

}  // namespace monitra::firmware
