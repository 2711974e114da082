#pragma once

#include <string>

#include "platform/failure.h"
#include "store/setup_files.h"

namespace monitra::shell {

/// What the status line says of an opened or saved Setup file where no box has told it; empty if
/// there is nothing to say.
std::string openingText(const store::OpenResult& result);
std::string savingText(platform::Failure failure, const std::string& path);

/// To be shown at the start where the stored preferences could not be read.
std::string damagedPreferencesText();

}  // namespace monitra::shell
