#include "shell/setup_marks.h"

#include "store/pwm_format.h"

namespace monitra::shell {

namespace {

/// A number may stand in a file with or without the blank of its sign.
std::vector<std::string> withoutBlanks(std::vector<std::string> records) {
  for (std::string& record : records) std::erase(record, ' ');
  return records;
}

}  // namespace

SetupMarks::SetupMarks(timing::SetupPanel& panel, const timing::Kozos& kozos)
    : panel_(panel), kozos_(kozos) {
  const auto watch = [this](auto& property) {
    watched_.push_back(property.observe([this] { views_.tell(); }));
  };
  for (int i = 0; i < timing::timingFields; ++i) {
    watch(panel_.FolLe[i].Value);
    watch(panel_.box(i).Text);
  }
  watch(panel_.Funkcio.ListIndex);
  for (auto* const spin : {&panel_.Utfolle, &panel_.Turesfolle}) watch(spin->Value);
  for (auto* const box : {&panel_.Ut, &panel_.Tures}) watch(box->Text);
  for (auto* const box : {&panel_.Xegesz, &panel_.Yegesz, &panel_.Zegesz}) {
    watch(box->Checked);
  }
  watch(panel_.Verz.Caption);
}

void SetupMarks::saved() {
  opened(store::pwmTexts(panel_, kozos_).records);
}

void SetupMarks::notSaved() {
  saved_.reset();
  views_.tell();
}

void SetupMarks::opened(const std::vector<std::string>& records) {
  saved_ = withoutBlanks(records);
  views_.tell();
}

void SetupMarks::sent() {
  sent_ = link::setupMessage(panel_.spinValues());
  views_.tell();
}

std::string SetupMarks::savedMark() const {
  if (!saved_) return "Nincs elmentve";
  const bool same = saved_ == withoutBlanks(store::pwmTexts(panel_, kozos_).records);
  return same ? "" : "Mentés óta módosult";
}

std::string SetupMarks::sentMark() const {
  if (!sent_) return "Még nincs feltöltve";
  return sent_ == link::setupMessage(panel_.spinValues()) ? "" : "Feltöltés óta módosult";
}

}  // namespace monitra::shell
