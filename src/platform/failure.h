#pragma once

namespace monitra::platform {

/// Why an operation of the outside world did not end as asked. The numbers are shown to the user.
enum class Failure : int {
  None = 0,
  NotANumber = 13,
  LineTooLong = 14,
  FileNotFound = 53,
  DeviceIo = 57,
  FileExists = 58,
  DiskFull = 61,
  EndOfFile = 62,
  PathFileAccess = 75,
  PathNotFound = 76,
  Cancel = 32755,
};

}  // namespace monitra::platform
