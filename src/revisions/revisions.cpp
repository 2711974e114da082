#include "revisions/revisions.h"

namespace monitra::revisions {

Revisions::Revisions(const Desk& desk, const FileSource& source, platform::UploadArchive& archive)
    : marks(desk.panel, desk.kozos),
      undo(desk),
      comparison(desk.panel, desk.kozos, marks, source),
      history(archive, source),
      desk_(desk) {}

void Revisions::start() {
  marks.saved();
  undo.start();
  comparison.refresh();
}

/// Acts, and tells what has changed.
template <class Act>
std::string Revisions::told(const char* head, Act act) {
  const Fields before = fieldsOf(desk_.panel, desk_.kozos);
  const std::string spm = desk_.panel.Spm.Text;
  act();
  std::string changes = changesText(before, fieldsOf(desk_.panel, desk_.kozos));
  if (const std::string& now = desk_.panel.Spm.Text; now != spm) {
    changes += (changes.empty() ? "" : ", ") + ("mm/Step: " + spm + " → " + now);
  }
  return std::string(head) + ": " + (changes.empty() ? "nem változott mező" : changes) + ".";
}

std::string Revisions::undoStep() {
  undo.close();
  if (!undo.canUndo()) return "Nincs mit visszavonni.";
  return told("Visszavonva", [this] { undo.undo(); });
}

std::string Revisions::redoStep() {
  undo.close();
  if (!undo.canRedo()) return "Nincs visszavont lépés.";
  return told("Mégis", [this] { undo.redo(); });
}

std::string Revisions::revert(std::size_t column, const std::vector<FieldIndex>& fields) {
  comparison.refresh();
  undo.close();
  const Fields source = comparison.columns()[column].fields;
  std::string text = told("Visszaállítva", [&] { restore(desk_, source, fields); });
  undo.close();
  return text;
}

std::string Revisions::copyAxis(int axis) {
  constexpr int axes = 3;
  undo.close();
  const Fields present = fieldsOf(desk_.panel, desk_.kozos);
  const std::vector<FieldIndex> from = fieldsOfAxis(axis);
  Fields source;
  std::vector<FieldIndex> fields;
  for (int other = 0; other < axes; ++other) {
    if (other == axis) continue;
    const std::vector<FieldIndex> to = fieldsOfAxis(other);
    for (std::size_t n = 0; n < to.size(); ++n) source.texts[to[n]] = present.texts[from[n]];
    fields.insert(fields.end(), to.begin(), to.end());
  }
  std::string text = told("Átmásolva", [&] { restore(desk_, source, fields); });
  undo.close();
  return text;
}

}  // namespace monitra::revisions
