#include "host/windows1250.h"

#include <algorithm>
#include <iconv.h>

namespace monitra::host {

namespace {

// NOLINTNEXTLINE(performance-no-int-to-ptr): that is how iconv_open tells a failure
const auto noConverter = reinterpret_cast<iconv_t>(-1);

/// The UTF-8 form of a code point below 0x800.
std::string utf8(unsigned point) {
  if (point < 0x80) return {static_cast<char>(point)};
  return {static_cast<char>(0xC0U | point >> 6), static_cast<char>(0x80U | (point & 0x3FU))};
}

/// Length of the UTF-8 character that begins with this byte; 1 for a byte that begins none.
std::size_t characterLength(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte >= 0xF0) return 4;
  if (byte >= 0xE0) return 3;
  return byte >= 0xC0 ? 2 : 1;
}

}  // namespace

Windows1250::Windows1250() {
  const iconv_t converter = iconv_open("UTF-8", "WINDOWS-1250");
  for (unsigned byte = 0; byte < characters_.size(); ++byte) {
    char in = static_cast<char>(byte);
    std::array<char, 8> out{};
    char* source = &in;
    char* target = out.data();
    std::size_t left = 1;
    std::size_t room = out.size();
    const bool converted = converter != noConverter &&
                           iconv(converter, &source, &left, &target, &room) == 0 && left == 0;
    std::string& character = characters_[byte];
    character = converted ? std::string(out.data(), target) : utf8(byte);
    bytes_[character] = static_cast<char>(byte);
  }
  if (converter != noConverter) iconv_close(converter);
}

std::string Windows1250::toUtf8(std::string_view bytes) const {
  std::string text;
  for (const char byte : bytes) text += characters_[static_cast<unsigned char>(byte)];
  return text;
}

std::string Windows1250::fromUtf8(std::string_view text) const {
  std::string bytes;
  while (!text.empty()) {
    const std::size_t length = std::min(characterLength(text.front()), text.size());
    const auto found = bytes_.find(text.substr(0, length));
    bytes += found != bytes_.end() ? found->second : '?';
    text.remove_prefix(length);
  }
  return bytes;
}

}  // namespace monitra::host
