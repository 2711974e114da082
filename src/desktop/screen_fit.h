#pragma once

#include <QMargins>
#include <QObject>
#include <QSize>

class QMainWindow;
class QTabWidget;

namespace monitra::desktop {

/// Keeps a window, whose size its layout fixes, within the free area of its screen together with
/// its frame. Where the content needs more it becomes denser; where that isn't enough the pages of
/// its tabs scroll, and what stands around them stays in sight. It never grows back.
class ScreenFit : public QObject {
 public:
  /// Both must outlive it, and have all their content.
  ScreenFit(QMainWindow* window, QTabWidget* pages);

  /// Shows the window in the middle of the free area.
  void showCentred();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QRect room() const;
  void fit();
  void makeDense();
  void letPagesScroll();

  QMainWindow* window_;
  QTabWidget* pages_;
  bool dense_ = false;
  QSize wanted_;  ///< once the pages scroll: what would be enough for all of them
};

}  // namespace monitra::desktop
