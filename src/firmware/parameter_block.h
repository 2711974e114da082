#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "timing/setup.h"

/// The parameter block in the controller's firmware image: three Intel HEX records, one after the
/// other, of eight 16-bit words each. The low byte of a word, which stands first in it, is a byte
/// of the block. Positions count the characters of a record's line from 1.
namespace monitra::firmware {

/// What a byte of the block holds.
enum class Holds {
  LimitSwitches,  ///< state of the limit switches; above 128: recorded
  TimingField,
  Mode,
  PathHigh,
  PathLow,
  Tolerance,
  VersionDigit,  ///< a character
  Unknown,
};

struct BlockByte {
  Holds holds;
  int which = 0;  ///< a timing field's index; 0 to 2 for a version digit
};

inline constexpr int blockRecords = 3;
inline constexpr int wordsPerRecord = 8;
inline constexpr std::array<std::string_view, blockRecords> blockAddresses{"4200", "4210", "4220"};
inline constexpr int versionRecord = 2;

/// Lines of an image up to this length in bytes are read, whatever they hold. A page saved under
/// an image's name can be one long line.
inline constexpr std::size_t longestImageLine = 16U << 20U;

/// The block's bytes, by record and word. Reader and patcher both go by this table: what is patched
/// is the Setup, and everything else stays as it is in the source.
inline constexpr std::array<std::array<BlockByte, wordsPerRecord>, blockRecords> parameterBlock{{
    {{{Holds::LimitSwitches},
      {Holds::TimingField, timing::T1X},
      {Holds::TimingField, timing::TFX},
      {Holds::TimingField, timing::T2X},
      {Holds::TimingField, timing::T3X},
      {Holds::TimingField, timing::T1Y},
      {Holds::TimingField, timing::TFY},
      {Holds::TimingField, timing::T2Y}}},

    {{{Holds::TimingField, timing::T3Y},
      {Holds::TimingField, timing::T1Z},
      {Holds::TimingField, timing::TFZ},
      {Holds::TimingField, timing::T2Z},
      {Holds::TimingField, timing::T3Z},
      {Holds::Mode},
      {Holds::PathHigh},
      {Holds::PathLow}}},

    {{{Holds::Tolerance},
      {Holds::Unknown},
      {Holds::VersionDigit, 0},
      {Holds::Unknown},
      {Holds::VersionDigit, 1},
      {Holds::Unknown},
      {Holds::VersionDigit, 2},
      {Holds::Unknown}}},
}};

/// The entry of a record's word, both counted from 0.
constexpr const BlockByte& blockByte(int record, int word) {
  return parameterBlock[static_cast<std::size_t>(record)][static_cast<std::size_t>(word)];
}

/// The two upper-case hex digits of a whole number from 0 to 255.
std::string KetHex(double value);

/// The value of a hex digit of either case, or -1 for any other character.
inline int hexDigit(char c) {
  static constexpr auto values = [] {
    std::array<std::int8_t, 256> table{};
    table.fill(-1);
    for (std::size_t value = 0; value < 16; ++value) {
      for (const std::string_view digits : {"0123456789ABCDEF", "0123456789abcdef"}) {
        table[static_cast<unsigned char>(digits[value])] = static_cast<std::int8_t>(value);
      }
    }
    return table;
  }();
  return values[static_cast<unsigned char>(c)];
}

/// The byte of the two hex digits at a position of the line.
std::uint8_t byteAt(std::string_view line, int position);

/// The checksum over a text of pairs of hex digits: what is missing from their sum to a multiple
/// of 256.
std::uint8_t checksum(std::string_view digits);

/// Whether the line has this address, four digits, at positions 4 to 7.
bool hasAddress(std::string_view line, std::string_view address);

/// The eight bytes of the block that a record's line holds. None if the line isn't a colon and hex
/// digits up to the checksum's place, or ends ahead of that. What byte count, address, record type
/// and checksum are is not tested.
using RecordBytes = std::array<std::uint8_t, wordsPerRecord>;
std::optional<RecordBytes> recordBytes(std::string_view line);

/// The record, counted from 0, with the Setup in its words, its checksum formed anew. The head and
/// the words that aren't patched are the source line's own characters. None where recordBytes
/// gives none.
std::optional<std::string> patchedRecord(int record, std::string_view source,
                                         const timing::Setup& setup);

}  // namespace monitra::firmware
