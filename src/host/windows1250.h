#pragma once

#include <array>
#include <map>

#include "platform/files.h"

namespace monitra::host {

/// Windows-1250, the code page of Hungarian Windows. Its five unused bytes stand for the control
/// characters of the same number, so that every byte comes back.
class Windows1250 : public platform::CodePage {
 public:
  Windows1250();

  std::string toUtf8(std::string_view bytes) const override;
  std::string fromUtf8(std::string_view text) const override;

 private:
  std::array<std::string, 256> characters_;  ///< UTF-8, by byte
  std::map<std::string, char, std::less<>> bytes_;
};

}  // namespace monitra::host
