#include "revisions/comparison.h"

#include <algorithm>

#include "store/failure_texts.h"

namespace monitra::revisions {

using platform::Failure;

Comparison::Comparison(const timing::SetupPanel& panel, const timing::Kozos& kozos,
                       const SetupMarks& marks, const FileSource& source)
    : panel_(panel),
      kozos_(kozos),
      marks_(marks),
      source_(source),
      columns_{{"Most", {}, {}}, {"Mentett", {}, {}}, {"Feltöltött", {}, {}}} {
  refresh();
}

std::optional<std::size_t> Comparison::add(const std::string& path, std::string& fault) {
  ReadFile read = readBeside(source_, path);
  const std::string name = path.substr(path.find_last_of('/') + 1);
  fault = read.failure == Failure::None ? "" : store::unreadableText(read.failure, name);
  const auto isThere = [&read](FieldIndex field) { return read.fields.holds(field); };
  if (std::ranges::none_of(allFields(), isThere)) return std::nullopt;
  auto place = std::ranges::find(columns_, path, &Column::path);
  if (place == columns_.end()) place = columns_.insert(place, Column{});
  *place = {name, path, std::move(read.fields)};
  return static_cast<std::size_t>(place - columns_.begin());
}

void Comparison::remove(std::size_t column) {
  if (column < firstFile || column >= columns_.size()) return;
  columns_.erase(columns_.begin() + static_cast<std::ptrdiff_t>(column));
}

void Comparison::refresh() {
  columns_[now].fields = fieldsOf(panel_, kozos_);
  columns_[saved].fields = marks_.savedFields().value_or(Fields{});
  columns_[sent].fields = marks_.sentFields().value_or(Fields{});
}

bool Comparison::differs(std::size_t column, FieldIndex field) const {
  return differ(columns_[now].fields, columns_[column].fields, field);
}

bool Comparison::differs(FieldIndex field) const {
  for (std::size_t column = saved; column < columns_.size(); ++column) {
    if (differs(column, field)) return true;
  }
  return false;
}

}  // namespace monitra::revisions
