#pragma once

#include <string>

#include "platform/failure.h"
#include "platform/files.h"
#include "revisions/fields.h"

namespace monitra::revisions {

/// Where files are read from, which must outlive who holds this.
struct FileSource {
  platform::Files& files;
  const platform::CodePage& codePage;
};

/// What a Setup or firmware file holds.
struct ReadFile {
  Fields fields;  ///< of one that ends early, or that has failed, those that could be read
  platform::Failure failure = platform::Failure::None;
};

/// Reads a file into a Setup of its own, the way the window would if it opened the file after its
/// start; the one in the window and what is open there stay. A name that ends in ".hex" is that of
/// a firmware file, which holds numbers and the version's digits.
ReadFile readBeside(const FileSource& source, const std::string& path);

}  // namespace monitra::revisions
