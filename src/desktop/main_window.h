#pragma once

#include <QMainWindow>

#include "desktop/widget_maker.h"
#include "shell/lap.h"

class QTabWidget;

namespace monitra::desktop {

/// The program's window, bound to the Lap, which must have been started and must outlive it.
/// Closing it runs the Lap's shutdown. A Setup or firmware file dropped on it is opened.
///
/// It comes up with its first tab; what stands on the others, which nobody sees yet, is made right
/// behind the first frame.
class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(shell::Lap& lap);

  /// In the middle of the screen, with the size that its content needs.
  void showCentred();

  /// Makes what is still missing.
  void complete();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void addMenus();
  QTabWidget* addTabs();
  template <class Tab>
  void fill(int page);

  shell::Lap& lap_;
  WidgetMaker widgets_{lap_};
  QTabWidget* tabs_;
  bool complete_ = false;
};

}  // namespace monitra::desktop
