#include "shell/setup_marks.h"

#include "store/pwm_format.h"

namespace monitra::shell {

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
  saved_ = store::pwmTexts(panel_, kozos_).records;
  tell();
}

void SetupMarks::openedOtherwise() {
  saved_.reset();
  tell();
}

void SetupMarks::sent() {
  sent_ = link::setupMessage(panel_.spinValues());
  tell();
}

std::string SetupMarks::savedMark() const {
  return saved_ == store::pwmTexts(panel_, kozos_).records ? "" : "Mentés óta módosult";
}

std::string SetupMarks::sentMark() const {
  if (!sent_) return "Még nincs feltöltve";
  return sent_ == link::setupMessage(panel_.spinValues()) ? "" : "Feltöltés óta módosult";
}

void SetupMarks::tell() const {
  for (const auto& view : views_) view();
}

}  // namespace monitra::shell
