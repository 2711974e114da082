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

PwmTexts pwmTexts(const SetupPanel& panel, const Kozos& kozos) {
  PwmTexts texts;
  for (int i = 0; i < timing::timingFields; ++i) texts.records.push_back(panel.box(i).Text);
  texts.records.push_back(timing::numberText(panel.Funkcio.ListIndex));
  texts.records.push_back(panel.Ut.Text);
  texts.records.push_back(panel.Tures.Text);
  texts.records.push_back(panel.Verz.Caption);
  for (const auto digit : versionDigits) {
    if (!timing::isNumber(kozos.*digit)) {
      texts.failure = Failure::NotANumber;
      return texts;
    }
    texts.records.push_back(timing::numberText(Ertek(kozos.*digit)));
  }
  for (const auto box : wholeStepBoxes) {
    texts.records.emplace_back((panel.*box).Checked ? "E" : "F");
  }
  return texts;
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
