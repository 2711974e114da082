#include "firmware/parameter_block.h"

#include <algorithm>

namespace monitra::firmware {

namespace {

constexpr int countPosition = 2;
constexpr int addressPosition = 4;
constexpr int dataPosition = 10;
constexpr int wordDigits = 4;
constexpr int checksumDigits = 2;
/// From the byte count to the last data word.
constexpr int recordDigits = dataPosition - countPosition + wordsPerRecord * wordDigits;

std::string_view part(std::string_view line, int position, int length) {
  return line.substr(static_cast<std::size_t>(position - 1), static_cast<std::size_t>(length));
}

constexpr int wordPosition(int word) {
  return dataPosition + word * wordDigits;
}

bool isWhole(std::string_view line) {
  constexpr int digits = recordDigits + checksumDigits;
  return line.size() > digits && line[0] == ':' &&
         std::ranges::all_of(part(line, countPosition, digits),
                             [](char c) { return hexDigit(c) >= 0; });
}

/// The byte that patching puts into the block; none where it keeps what is there.
std::optional<int> patch(const BlockByte& entry, const timing::Setup& setup) {
  constexpr int byteValues = 256;
  switch (entry.holds) {
    case Holds::TimingField:
      return setup.timing[static_cast<std::size_t>(entry.which)];
    case Holds::Mode:
      return setup.Funkcio;
    case Holds::PathHigh:
      return setup.Ut / byteValues;
    case Holds::PathLow:
      return setup.Ut % byteValues;
    case Holds::Tolerance:
      return setup.Tures;
    case Holds::LimitSwitches:
    case Holds::VersionDigit:
    case Holds::Unknown:
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

std::string KetHex(double value) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  const auto byte = static_cast<std::size_t>(value);
  return {digits[byte / digits.size()], digits[byte % digits.size()]};
}

std::uint8_t byteAt(std::string_view line, int position) {
  const std::string_view digits = part(line, position, 2);
  return static_cast<std::uint8_t>(hexDigit(digits[0]) * 16 + hexDigit(digits[1]));
}

std::uint8_t checksum(std::string_view digits) {
  unsigned sum = 0;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    sum += byteAt(digits, static_cast<int>(i) + 1);
  }
  return static_cast<std::uint8_t>(-sum);
}

bool hasAddress(std::string_view line, std::string_view address) {
  constexpr std::size_t ahead = addressPosition - 1;
  return line.size() >= ahead + address.size() && line.substr(ahead, address.size()) == address;
}

std::optional<RecordBytes> recordBytes(std::string_view line) {
  if (!isWhole(line)) return std::nullopt;
  RecordBytes bytes{};
  for (int word = 0; word < wordsPerRecord; ++word) {
    bytes[static_cast<std::size_t>(word)] = byteAt(line, wordPosition(word));
  }
  return bytes;
}

std::optional<std::string> patchedRecord(int record, std::string_view source,
                                         const timing::Setup& setup) {
  if (!isWhole(source)) return std::nullopt;
  std::string line(part(source, 1, dataPosition - 1));
  for (int word = 0; word < wordsPerRecord; ++word) {
    const std::optional<int> byte = patch(blockByte(record, word), setup);
    line += byte ? KetHex(*byte) + "00" : std::string(part(source, wordPosition(word), wordDigits));
  }
  return line + KetHex(checksum(part(line, countPosition, recordDigits)));
}

}  // namespace monitra::firmware
