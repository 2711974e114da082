#pragma once

#include <string_view>

namespace monitra::store {

/// The files that the program opens.
enum class FileKind { None, Setup, Firmware };

/// By the extension, in either case.
FileKind fileKind(std::string_view path);

}  // namespace monitra::store
