#pragma once

#include <string>
#include <vector>

#include "platform/failure.h"
#include "platform/files.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"

namespace monitra::store {

/// A Setup file is a fixed sequence of records, numbered from 1, one to a line.
inline constexpr int pwmRecords = 22;

/// Records with one value each; the timing fields come first, in the order of their indexes.
enum Record : int {
  firstTimingField = 1,
  lastTimingField = 12,
  funkcioRecord = 13,
  utRecord = 14,
  turesRecord = 15,
  verzRecord = 16,
  verFoRecord = 17,
  verRevRecord = 19,
  xEgeszRecord = 20,
  zEgeszRecord = 22,
};

/// The first of these records are read as whole lines, all others as fields.
inline constexpr int pwmWholeLineRecords = 2;

/// The texts to be saved, in UTF-8. If a version digit is no number, the failure is NotANumber and
/// the texts end ahead of its record.
struct PwmTexts {
  std::vector<std::string> records;
  platform::Failure failure = platform::Failure::None;
};

PwmTexts pwmTexts(const timing::SetupPanel& panel, const timing::Kozos& kozos);

/// The text of one record. Of a version digit that is no number, which no file holds, that digit.
std::string pwmRecord(int record, const timing::SetupPanel& panel, const timing::Kozos& kozos);

/// The content of a file with these records.
std::string pwmLines(const std::vector<std::string>& records, const platform::CodePage& codePage);

/// Puts the text of a record, in UTF-8, into its control or global, whose own events follow. A
/// number outside the field's range takes the nearest limit, which the field then also shows.
/// Returns whether that was so.
bool applyPwmRecord(int record, const std::string& text, timing::SetupPanel& panel,
                    timing::Kozos& kozos);

}  // namespace monitra::store
