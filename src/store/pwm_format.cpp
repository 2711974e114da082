#include "store/pwm_format.h"

#include <array>
#include <cassert>

#include "timing/numbers.h"

namespace monitra::store {

using platform::Failure;
using timing::Ertek;
using timing::Kozos;
using timing::SetupPanel;

namespace {

constexpr std::array versionDigits{&Kozos::VerFo, &Kozos::VerAl, &Kozos::VerRev};
constexpr std::array wholeStepBoxes{&SetupPanel::Xegesz, &SetupPanel::Yegesz, &SetupPanel::Zegesz};

constexpr bool within(int record, int first, int last) {
  return record >= first && record <= last;
}

std::size_t offset(int record, int first) {
  return static_cast<std::size_t>(record - first);
}

bool outside(const controls::BoundedProperty& value, double number) {
  return number < value.min() || number > value.max();
}

bool applyTimingField(int i, const std::string& text, SetupPanel& panel) {
  const double number = Ertek(text);
  controls::BoundedProperty& value = panel.FolLe[i].Value;
  panel.box(i).Text = text;
  value = timing::wholeNumber(number);
  if (!outside(value, number)) return false;
  panel.box(i).Text = timing::decimalText(value);
  return true;
}

bool applyFunkcio(const std::string& text, SetupPanel& panel) {
  const int index = timing::wholeNumber(Ertek(text));
  panel.Funkcio.ListIndex = index;
  return outside(panel.Funkcio.ListIndex, index);
}

}  // namespace

std::string pwmRecord(int record, const SetupPanel& panel, const Kozos& kozos) {
  assert(within(record, 1, pwmRecords));
  if (within(record, firstTimingField, lastTimingField)) {
    return panel.box(record - firstTimingField).Text;
  }
  if (within(record, verFoRecord, verRevRecord)) {
    const std::string& digit = kozos.*versionDigits[offset(record, verFoRecord)];
    return timing::isNumber(digit) ? timing::numberText(Ertek(digit)) : digit;
  }
  if (within(record, xEgeszRecord, zEgeszRecord)) {
    return (panel.*wholeStepBoxes[offset(record, xEgeszRecord)]).Checked ? "E" : "F";
  }
  switch (record) {
    case funkcioRecord:
      return timing::numberText(panel.Funkcio.ListIndex);
    case utRecord:
      return panel.Ut.Text;
    case turesRecord:
      return panel.Tures.Text;
    default:
      return panel.Verz.Caption;
  }
}

PwmTexts pwmTexts(const SetupPanel& panel, const Kozos& kozos) {
  PwmTexts texts;
  for (int record = 1; record <= pwmRecords; ++record) {
    if (within(record, verFoRecord, verRevRecord) &&
        !timing::isNumber(kozos.*versionDigits[offset(record, verFoRecord)])) {
      texts.failure = Failure::NotANumber;
      break;
    }
    texts.records.push_back(pwmRecord(record, panel, kozos));
  }
  return texts;
}

std::string pwmLines(const std::vector<std::string>& records, const platform::CodePage& codePage) {
  std::string lines;
  for (const std::string& record : records) lines += codePage.fromUtf8(record) + "\r\n";
  return lines;
}

bool applyPwmRecord(int record, const std::string& text, SetupPanel& panel, Kozos& kozos) {
  assert(within(record, 1, pwmRecords));
  if (within(record, firstTimingField, lastTimingField)) {
    return applyTimingField(record - firstTimingField, text, panel);
  }
  if (within(record, verFoRecord, verRevRecord)) {
    kozos.*versionDigits[offset(record, verFoRecord)] = timing::decimalText(Ertek(text));
    return false;
  }
  if (within(record, xEgeszRecord, zEgeszRecord)) {
    (panel.*wholeStepBoxes[offset(record, xEgeszRecord)]).Checked = text == "E";
    return false;
  }
  switch (record) {
    case funkcioRecord:
      return applyFunkcio(text, panel);
    case utRecord:
      panel.Ut.Text = text;
      return outside(panel.Utfolle.Value, Ertek(text));
    case turesRecord:
      panel.Tures.Text = text;
      return outside(panel.Turesfolle.Value, Ertek(text));
    default:
      assert(record == verzRecord);
      panel.Verz.Caption = text;
      return false;
  }
}

}  // namespace monitra::store
