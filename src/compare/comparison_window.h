#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "compare/comparison_model.h"
#include "compare/history_page.h"
#include "revisions/revisions.h"

class QCheckBox;
class QLabel;
class QTableView;
class QTabWidget;

namespace monitra::compare {

class AxisPanel;

/// The Setup of the main window, all of which must outlive who shows it.
struct Shown {
  revisions::Revisions& revisions;
  timing::SetupPanel& panel;
  const timing::Kozos& kozos;
};

/// What the user can ask of the main window from here.
struct Actions {
  std::function<void(const std::string& path)> open;
  std::function<void(std::size_t column, const std::vector<revisions::FieldIndex>& fields)> revert;
  std::function<void()> undo;
  std::function<void()> redo;
};

/// The window "Összevetés": the present Setup beside the saved one, the uploaded one and files, its
/// curves and speeds, and the former uploads. It opens nothing in the main window unasked.
class ComparisonWindow : public QMainWindow {
 public:
  ComparisonWindow(const Shown& shown, Actions actions, QWidget* parent = nullptr);

  /// Puts files beside the present Setup; what can't be read is told.
  void add(const QStringList& paths);

  /// Shows now what has changed; else it is shown once the user's event has run to its end.
  void refresh();

 protected:
  void showEvent(QShowEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* makeComparison();
  QWidget* makeCurves();
  QLayout* makeFileButtons();
  QLayout* makeWaysBack();
  void followSetup();
  void refreshCurves();
  void hideEqualRows();
  void revert(const std::vector<revisions::FieldIndex>& fields);
  void tellCell();
  std::size_t chosenColumn() const;
  std::vector<revisions::FieldIndex> chosenField() const;
  std::vector<revisions::FieldIndex> chosenAxis() const;

  Shown shown_;
  Actions actions_;
  ComparisonModel model_;
  QTimer changed_;
  QTabWidget* pages_;
  QTableView* table_;
  QCheckBox* onlyDifferences_;
  QLabel* details_;
  HistoryPage* history_;
  std::array<AxisPanel*, 3> axes_{};
};

}  // namespace monitra::compare
