#pragma once

#include <QMainWindow>

#include "desktop/widget_maker.h"
#include "shell/lap.h"

class QTabWidget;

namespace monitra::desktop {

class ScreenFit;

/// The program's window, bound to the Lap, which must have been started and must outlive it.
/// Closing it runs the Lap's shutdown. A Setup or firmware file dropped on it is opened.
class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(shell::Lap& lap);

  /// In the middle of the screen, with the size that its content needs and the screen has.
  void showCentred();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void lookAfterPort();
  void addMenus();
  QTabWidget* addTabs();

  shell::Lap& lap_;
  WidgetMaker widgets_{lap_};
  ScreenFit* fit_ = nullptr;
};

}  // namespace monitra::desktop
