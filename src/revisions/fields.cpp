#include "revisions/fields.h"

#include <numeric>
#include <tuple>

#include "timing/numbers.h"

namespace monitra::revisions {

namespace {

constexpr FieldIndex funkcio = fieldOf(store::funkcioRecord);
constexpr FieldIndex ut = fieldOf(store::utRecord);
constexpr FieldIndex tures = fieldOf(store::turesRecord);
constexpr FieldIndex firstWholeStep = fieldOf(store::xEgeszRecord);
constexpr int axes = 3;

struct Words {
  std::string_view name;
  std::string_view label;
};

constexpr std::array<Words, fieldCount> words{{
    {"TFX", "TF X"},
    {"TFY", "TF Y"},
    {"TFZ", "TF Z"},
    {"T1X", "T1 X"},
    {"T1Y", "T1 Y"},
    {"T1Z", "T1 Z"},
    {"T2X", "T2 X"},
    {"T2Y", "T2 Y"},
    {"T2Z", "T2 Z"},
    {"T3X", "T3 X"},
    {"T3Y", "T3 Y"},
    {"T3Z", "T3 Z"},
    {"Funkcio", "Speciális funkció"},
    {"Ut", "Motor tuningút"},
    {"Tures", "Hibatűrés"},
    {"Verz", "Firmware verzió"},
    {"VerFo", "Verzió 1. jegye"},
    {"VerAl", "Verzió 2. jegye"},
    {"VerRev", "Verzió 3. jegye"},
    {"Xegesz", "X léptetése"},
    {"Yegesz", "Y léptetése"},
    {"Zegesz", "Z léptetése"},
}};

std::string withoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

std::string modeText(int mode) {
  return timing::decimalText(mode) + ": " +
         std::string(timing::funkcioEntries[static_cast<std::size_t>(mode)]);
}

}  // namespace

std::string_view fieldName(FieldIndex field) {
  return words[field].name;
}

std::string_view fieldLabel(FieldIndex field) {
  return words[field].label;
}

std::vector<FieldIndex> fieldsOfAxis(int axis) {
  std::vector<FieldIndex> fields;
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    if (axisOf(field) == axis) fields.push_back(field);
  }
  return fields;
}

std::optional<int> axisOf(FieldIndex field) {
  if (field < funkcio) return static_cast<int>(field) % axes;
  if (field < firstWholeStep) return std::nullopt;
  return static_cast<int>(field - firstWholeStep);
}

std::vector<FieldIndex> allFields() {
  std::vector<FieldIndex> fields(fieldCount);
  std::iota(fields.begin(), fields.end(), FieldIndex{0});
  return fields;
}

Fields fieldsOf(const timing::SetupPanel& panel, const timing::Kozos& kozos) {
  Fields fields = fieldsOf(panel.spinValues());
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    fields.texts[field] = store::pwmRecord(recordOf(field), panel, kozos);
  }
  return fields;
}

Fields fieldsOf(const timing::Setup& setup) {
  Fields fields;
  for (FieldIndex i = 0; i < timing::timingFields; ++i) fields.numbers[i] = setup.timing[i];
  fields.numbers[funkcio] = setup.Funkcio;
  fields.numbers[ut] = setup.Ut;
  fields.numbers[tures] = setup.Tures;
  fields.numbers[firstWholeStep] = setup.Xegesz ? 1 : 0;
  fields.numbers[firstWholeStep + 1] = setup.Yegesz ? 1 : 0;
  fields.numbers[firstWholeStep + 2] = setup.Zegesz ? 1 : 0;
  return fields;
}

bool differ(const Fields& a, const Fields& b, FieldIndex field) {
  const auto& [text, otherText] = std::tie(a.texts[field], b.texts[field]);
  const auto& [number, otherNumber] = std::tie(a.numbers[field], b.numbers[field]);
  return (text && otherText && *text != *otherText &&
          withoutBlanks(*text) != withoutBlanks(*otherText)) ||
         (number && otherNumber && *number != *otherNumber);
}

std::vector<FieldIndex> differences(const Fields& a, const Fields& b) {
  std::vector<FieldIndex> fields;
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    if (differ(a, b, field)) fields.push_back(field);
  }
  return fields;
}

std::string recordText(const Fields& fields, FieldIndex field) {
  if (fields.texts[field]) return *fields.texts[field];
  if (!fields.numbers[field]) return {};
  const int number = *fields.numbers[field];
  if (field >= firstWholeStep) return number == 1 ? "E" : "F";
  return timing::decimalText(number);
}

std::string shownText(const Fields& fields, FieldIndex field) {
  if (!fields.holds(field)) return "–";
  std::string text = withoutBlanks(recordText(fields, field));
  if (text == "E") return "egész";
  if (text == "F") return "fél";
  const std::optional<int>& number = fields.numbers[field];
  if (!number) return text;
  const std::string plain = timing::decimalText(*number);
  const std::string meaning = field == funkcio ? modeText(*number) : plain;
  return text == plain ? meaning : text + " (" + meaning + ")";
}

std::string changesText(const Fields& before, const Fields& after) {
  constexpr std::size_t most = 6;
  const std::vector<FieldIndex> changed = differences(before, after);
  std::string text;
  for (std::size_t n = 0; n < changed.size() && n < most; ++n) {
    const FieldIndex field = changed[n];
    if (n > 0) text += ", ";
    text += words[field].label;
    text += ": " + shownText(before, field) + " → " + shownText(after, field);
  }
  if (changed.size() > most) text += " és még " + std::to_string(changed.size() - most);
  return text;
}

}  // namespace monitra::revisions
