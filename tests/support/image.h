#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

/// Intel HEX images for tests, made without the code that they test.
namespace monitra::support {

inline std::string record(int address, const std::vector<int>& data, int type = 0) {
  std::vector<int> bytes{static_cast<int>(data.size()), address / 256, address % 256, type};
  bytes.insert(bytes.end(), data.begin(), data.end());
  int sum = 0;
  for (const int byte : bytes) sum += byte;
  bytes.push_back(-sum & 0xFF);
  std::string line = ":";
  for (const int byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(byte) & 0xFF);
    line += digits;
  }
  return line;
}

/// A record of eight words with these low bytes.
inline std::string wordRecord(int address, const std::vector<int>& lows, int high = 0) {
  std::vector<int> data;
  for (const int low : lows) data.insert(data.end(), {low, high});
  return record(address, data);
}

/// A parameter block of three lines whose values all differ from one another. Its high bytes
/// aren't zero.
struct Block {
  std::string line4200 = wordRecord(0x4200, {129, 31, 32, 33, 34, 35, 36, 37}, 0xA1);
  std::string line4210 = wordRecord(0x4210, {38, 39, 40, 41, 42, 2, 0x1, 0x2}, 0xA2);
  std::string line4220 = wordRecord(0x4220, {9, 0xD1, '5', 0xD2, '0', 0xD3, '3', 0xD4}, 0xA3);

  std::string text() const { return line4200 + "\n" + line4210 + "\n" + line4220 + "\n"; }
};

/// The same hex digits in lower case.
inline std::string lower(std::string text) {
  std::ranges::transform(text, text.begin(), [](char c) { return c >= 'A' ? c | 0x20 : c; });
  return text;
}

inline const std::string closingRecord = ":00000001FF";

}  // namespace monitra::support
