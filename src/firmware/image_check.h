#pragma once

#include <functional>
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

using FaultSink = std::function<void(const ImageFault&)>;

struct ImageReport {
  /// Why the file could not be read to its end.
  platform::Failure failure = platform::Failure::None;
  long records = 0;           ///< lines that begin as one
  long blockLine = 0;         ///< where the parameter block begins; 0: there is none
  bool blockIsSound = false;  ///< its records are whole and in place, checksums apart
  long faultCount = 0;        ///< of all faults
  /// The first of them, and all decisive ones: those of the few records and fields that are taken
  /// for the block's, and of the file's end.
  std::vector<ImageFault> faults;
};

/// Checks each record of an Intel HEX file for its form, its length and its checksum, and the file
/// for its closing record and the parameter block. Reads the file once and changes nothing.
/// Each fault goes to the sink, if there is one, as it is found.
ImageReport checkImage(platform::Files& files, const std::string& path, const FaultSink& sink = {});

}  // namespace monitra::firmware
