#include "revisions/restorer.h"

#include <optional>
#include <utility>

namespace monitra::revisions {

namespace {

constexpr FieldIndex verFo = fieldOf(store::verFoRecord);

/// Puts the texts of records into their fields, under an edition if one comes with them.
template <class Texts>
void apply(const Desk& desk, const Texts& texts, const std::optional<timing::Edition>& edition) {
  // One mode is for the second edition only, which is therefore there first and left last.
  if (edition && edition->tarso) desk.editions.choose(*edition);
  // A text that spells its number in a way of its own stays only where the number stands already.
  for (int pass = 0; pass < 2; ++pass) {
    for (const auto& [field, text] : texts) {
      store::applyPwmRecord(recordOf(field), text, desk.panel, desk.kozos);
    }
  }
  edition ? desk.editions.choose(*edition) : desk.fields.MindFrissit();
}

}  // namespace

Snapshot snapshotOf(const Desk& desk) {
  const timing::Kozos& kozos = desk.kozos;
  Snapshot snapshot;
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    snapshot.records[field] = store::pwmRecord(recordOf(field), desk.panel, kozos);
  }
  snapshot.version = {kozos.VerFo, kozos.VerAl, kozos.VerRev};
  snapshot.Spm = desk.panel.Spm.Text;
  snapshot.edition = desk.editions.present();
  return snapshot;
}

void restore(const Desk& desk, const Snapshot& snapshot) {
  std::vector<std::pair<FieldIndex, std::string>> texts;
  for (FieldIndex field = 0; field < fieldCount; ++field) {
    texts.emplace_back(field, snapshot.records[field]);
  }
  apply(desk, texts, snapshot.edition);
  // A firmware file's digits may be none.
  desk.kozos.VerFo = snapshot.version[0];
  desk.kozos.VerAl = snapshot.version[1];
  desk.kozos.VerRev = snapshot.version[2];
  desk.panel.Spm.Text = snapshot.Spm;
}

void restore(const Desk& desk, const Fields& source, const std::vector<FieldIndex>& fields) {
  std::vector<std::pair<FieldIndex, std::string>> texts;
  std::optional<timing::Edition> edition;
  for (const FieldIndex field : fields) {
    if (!source.holds(field)) continue;
    texts.emplace_back(field, recordText(source, field));
    if (field == verFo) edition = timing::editionOf(texts.back().second);
  }
  apply(desk, texts, edition);
}

}  // namespace monitra::revisions
