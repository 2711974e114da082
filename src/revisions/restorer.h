#pragma once

#include <array>
#include <string>
#include <vector>

#include "revisions/fields.h"
#include "timing/editions.h"
#include "timing/timing_fields.h"

namespace monitra::revisions {

/// The Setup in the window and what works on it, all of which must outlive who holds this.
struct Desk {
  timing::Kozos& kozos;
  timing::SetupPanel& panel;
  timing::TimingFields& fields;
  timing::Editions& editions;
};

/// The whole Setup of a moment, down to the spelling of its texts, with what no file holds.
struct Snapshot {
  std::array<std::string, fieldCount> records;
  std::array<std::string, 3> version;  ///< VerFo, VerAl, VerRev as they stand
  std::string Spm;
  timing::Edition edition;

  bool operator==(const Snapshot&) const = default;
};

Snapshot snapshotOf(const Desk& desk);

/// Puts all of it back, as the opening of a file does: each control's own events follow.
void restore(const Desk& desk, const Snapshot& snapshot);

/// The same with some fields of a Setup, but for those that it doesn't hold. The first digit of the
/// version brings its edition.
void restore(const Desk& desk, const Fields& source, const std::vector<FieldIndex>& fields);

}  // namespace monitra::revisions
