#pragma once

#include <span>

#include "platform/files.h"
#include "shell/lap.h"

namespace monitra::apps {

/// What the command line names besides the toolkit's own options: one file is opened as a dropped
/// one is; of anything else the event line says that nothing was opened.
void openNamed(shell::Lap& lap, platform::Files& files, std::span<char* const> arguments);

}  // namespace monitra::apps
