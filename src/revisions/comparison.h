#pragma once

#include <optional>
#include <string>
#include <vector>

#include "revisions/read_beside.h"
#include "revisions/setup_marks.h"

namespace monitra::revisions {

/// Setups beside each other: the present one, what was last saved or opened, what was last sent,
/// and files. Nothing here changes the present one.
class Comparison {
 public:
  static constexpr std::size_t now = 0;
  static constexpr std::size_t saved = 1;
  static constexpr std::size_t sent = 2;
  static constexpr std::size_t firstFile = 3;

  struct Column {
    std::string name;
    std::string path;  ///< of a file; empty for the first three
    Fields fields;
  };

  /// The arguments must outlive it.
  Comparison(const timing::SetupPanel& panel, const timing::Kozos& kozos, const SetupMarks& marks,
             const FileSource& source);

  /// Puts a file beside the others, or reads anew the one that is there already. Gives its column;
  /// none, and why, where it can't be read at all. Of a file that ends early what is there counts.
  std::optional<std::size_t> add(const std::string& path, std::string& fault);
  /// A file may go, the first three columns stay.
  void remove(std::size_t column);

  /// Brings the first three up to date.
  void refresh();

  const std::vector<Column>& columns() const { return columns_; }

  /// Whether a column holds another value there than the present Setup does; and whether any does.
  bool differs(std::size_t column, FieldIndex field) const;
  bool differs(FieldIndex field) const;

 private:
  const timing::SetupPanel& panel_;
  const timing::Kozos& kozos_;
  const SetupMarks& marks_;
  FileSource source_;
  std::vector<Column> columns_;
};

}  // namespace monitra::revisions
