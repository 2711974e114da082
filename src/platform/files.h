#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/failure.h"

namespace monitra::platform {

/// A file open for reading, closed by the destructor.
class ByteReader {
 public:
  virtual ~ByteReader() = default;

  /// Gives the file's next bytes, at least one, or an empty chunk at its end.
  virtual Failure read(std::string& chunk) = 0;
};

/// A file open for writing, closed by the destructor at the latest.
class ByteWriter {
 public:
  virtual ~ByteWriter() = default;

  /// The bytes have been handed to the system when the call returns Failure::None.
  virtual Failure write(std::string_view bytes) = 0;

  /// What was written is kept by the device, not only by the system, when the call returns
  /// Failure::None; otherwise it may not all be in the file.
  virtual Failure close() = 0;
};

/// Files by path. Paths and names are UTF-8.
class Files {
 public:
  virtual ~Files() = default;

  /// The name, as the folder holds it, of the file found at the path; empty if there is none.
  /// A folder is no file.
  virtual std::string Dir(const std::string& path) = 0;

  virtual Failure openForReading(const std::string& path, std::unique_ptr<ByteReader>& file) = 0;

  /// An existing file is emptied.
  virtual Failure openForWriting(const std::string& path, std::unique_ptr<ByteWriter>& file) = 0;

  /// Failure::FileExists, and nothing changed, if there is anything at the path but a folder.
  virtual Failure createForWriting(const std::string& path, std::unique_ptr<ByteWriter>& file) = 0;

  /// A folder stays.
  virtual Failure remove(const std::string& path) = 0;
};

/// The single-byte code page of text files. Every byte has a character and comes back from it.
class CodePage {
 public:
  virtual ~CodePage() = default;

  virtual std::string toUtf8(std::string_view bytes) const = 0;

  /// A character that the code page doesn't have becomes "?".
  virtual std::string fromUtf8(std::string_view text) const = 0;
};

}  // namespace monitra::platform
