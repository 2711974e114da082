#pragma once

#include <string>

#include "platform/failure.h"

namespace monitra::store {

/// What a code means, for the end of a sentence, with the code.
std::string failureMeaning(platform::Failure failure);

/// Why a file can't be read to its end.
std::string unreadableText(platform::Failure failure, const std::string& name);

}  // namespace monitra::store
