#include "revisions/setup_marks.h"

#include <algorithm>

namespace monitra::revisions {

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
  for (auto* const box : {&panel_.Ut, &panel_.Tures, &panel_.Spm}) watch(box->Text);
  for (auto* const box : {&panel_.Xegesz, &panel_.Yegesz, &panel_.Zegesz}) {
    watch(box->Checked);
  }
  watch(panel_.Verz.Caption);
}

void SetupMarks::saved() {
  saved_ = fieldsOf(panel_, kozos_);
  views_.tell();
}

void SetupMarks::notSaved() {
  saved_.reset();
  views_.tell();
}

void SetupMarks::opened(const std::vector<std::string>& records) {
  const Fields made = fieldsOf(panel_, kozos_);
  saved_.emplace();
  for (FieldIndex field = 0; field < records.size(); ++field) {
    saved_->texts[field] = records[field];
    saved_->numbers[field] = made.numbers[field];
  }
  views_.tell();
}

void SetupMarks::sent() {
  sent_ = fieldsOf(panel_.spinValues());
  views_.tell();
}

std::string SetupMarks::savedMark() const {
  if (!saved_) return "Nincs elmentve";
  const bool isWhole = std::ranges::all_of(saved_->texts, &std::optional<std::string>::has_value);
  const bool same = isWhole && differences(*saved_, fieldsOf(panel_, kozos_)).empty();
  return same ? "" : "Mentés óta módosult";
}

std::string SetupMarks::sentMark() const {
  if (!sent_) return "Még nincs feltöltve";
  const bool same = differences(*sent_, fieldsOf(panel_.spinValues())).empty();
  return same ? "" : "Feltöltés óta módosult";
}

}  // namespace monitra::revisions
