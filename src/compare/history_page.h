#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "compare/history_model.h"

class QLabel;
class QTableView;

namespace monitra::compare {

/// What was uploaded, the newest on top, and what can be done with it.
class HistoryPage : public QWidget {
 public:
  using Act = std::function<void(const std::string& path)>;

  /// The history must outlive it. A chosen file can be opened in the main window, or put beside the
  /// present Setup.
  HistoryPage(revisions::UploadHistory& history, Act open, Act compare);

  /// Reads the list anew; or only if this run has added to it.
  void refresh();
  void follow();

 private:
  void withChosen(const std::function<void(std::size_t)>& act);
  std::string pathOf(std::size_t chosen) const;

  HistoryModel model_;
  QTableView* table_;
  QLabel* details_;
  long shown_ = 0;  ///< of what this run has kept
};

}  // namespace monitra::compare
