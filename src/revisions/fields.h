#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/pwm_format.h"
#include "timing/kozos.h"
#include "timing/setup.h"
#include "timing/setup_panel.h"

/// What a Setup was and has become: differences, undo, what was uploaded before.
namespace monitra::revisions {

/// A field of the Setup by the place of its record in a Setup file, from 0.
using FieldIndex = std::size_t;
inline constexpr FieldIndex fieldCount = store::pwmRecords;

/// The field of a record, which a Setup file counts from 1, and the other way round.
constexpr FieldIndex fieldOf(int record) {
  return static_cast<FieldIndex>(record - 1);
}
constexpr int recordOf(FieldIndex field) {
  return static_cast<int>(field) + 1;
}

/// So a field is called in the program, and how the user reads it.
std::string_view fieldName(FieldIndex field);
std::string_view fieldLabel(FieldIndex field);

/// The fields of an axis, 0 to 2: its times, and whether it goes in whole steps.
std::vector<FieldIndex> fieldsOfAxis(int axis);
/// The axis that a field belongs to, if it does.
std::optional<int> axisOf(FieldIndex field);

std::vector<FieldIndex> allFields();

/// A Setup field by field, each with the text that a Setup file holds and the number that goes out
/// in the message of an upload. None where the source doesn't hold it, or no number goes out.
struct Fields {
  std::array<std::optional<std::string>, fieldCount> texts;
  std::array<std::optional<int>, fieldCount> numbers;

  bool holds(FieldIndex field) const { return texts[field] || numbers[field]; }
};

/// Of the Setup in the window: both.
Fields fieldsOf(const timing::SetupPanel& panel, const timing::Kozos& kozos);
/// Of what has gone out: numbers.
Fields fieldsOf(const timing::Setup& setup);

/// Whether the two hold another text or another number there. Blanks don't count, which a number
/// may have in a file or not; what one of the two doesn't hold is no difference.
bool differ(const Fields& a, const Fields& b, FieldIndex field);
std::vector<FieldIndex> differences(const Fields& a, const Fields& b);

/// A field's value for the user: its text and, where that spells it in another way, the number that
/// goes out; the name of a mode. "–" for what isn't held.
std::string shownText(const Fields& fields, FieldIndex field);

/// A field's value as its record's text; empty for what isn't held.
std::string recordText(const Fields& fields, FieldIndex field);

/// What is another in the second of two, as "T1 X: 40 → 45, T2 X: 24 → 23"; past a few "és még 5".
/// Empty if nothing is.
std::string changesText(const Fields& before, const Fields& after);

}  // namespace monitra::revisions
