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
  const auto view = [this] { tell(); };
  for (int i = 0; i < timing::timingFields; ++i) {
    panel_.FolLe[i].Value.observe(view);
    panel_.box(i).Text.observe(view);
  }
  panel_.Funkcio.ListIndex.observe(view);
  for (auto* const spin : {&panel_.Utfolle, &panel_.Turesfolle}) spin->Value.observe(view);
  for (auto* const box : {&panel_.Ut, &panel_.Tures}) box->Text.observe(view);
  for (auto* const box : {&panel_.Xegesz, &panel_.Yegesz, &panel_.Zegesz}) {
    box->Checked.observe(view);
  }
  panel_.Verz.Caption.observe(view);
}

void SetupMarks::saved() {
  opened(store::pwmTexts(panel_, kozos_).records);
}

void SetupMarks::notSaved() {
  saved_.reset();
  tell();
}

void SetupMarks::opened(const std::vector<std::string>& records) {
  saved_ = withoutBlanks(records);
  tell();
}

void SetupMarks::sent() {
  sent_ = link::setupMessage(panel_.spinValues());
  tell();
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

void SetupMarks::tell() const {
  for (const auto& view : views_) view();
}

}  // namespace monitra::shell
