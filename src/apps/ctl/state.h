#pragma once

#include <string>
#include <utility>
#include <vector>

#include "apps/ctl/session.h"

namespace monitra::ctl {

/// A name and a text beyond what every state has.
using ExtraEntry = std::pair<std::string, std::string>;

/// Prints the model's state and the boxes that came up to standard output, as lines of names and
/// values or as one JSON object; with the latter the boxes also go to standard error. The speeds in
/// millimetres are those that Spm gives.
void printState(const Session& session, bool json, const std::vector<ExtraEntry>& extra = {},
                bool inMillimetres = false);

}  // namespace monitra::ctl
