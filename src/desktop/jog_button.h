#pragma once

#include <QTimer>
#include <QWidget>

#include "controls/controls.h"

namespace monitra::desktop {

/// An arrow that acts while a button of the mouse holds it; dragging the mouse away doesn't let it
/// go. It comes up as soon as nobody can be sure that it is still held: at the loss of the focus or
/// of the mouse grab, at a dialog, at any key, and when its window is left, minimised, hidden or
/// closed. Several of these come together, so that none of them is relied on alone.
///
/// A key doesn't hold it: a window manager can swallow the release of a key, and the motor would
/// run on. And while it is held the display is asked for a sign of life: a display that hangs
/// delivers no release, so the thread waits for it, and with the thread the pulses.
class JogButton : public QWidget {
 public:
  /// The side is in pixels. The control must outlive it, and not change after it.
  JogButton(Qt::ArrowType arrow, int side, controls::HoldButton& control);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void checkMouse(Qt::MouseButtons buttons);

  const Qt::ArrowType arrow_;
  controls::HoldButton& control_;
  QTimer signOfLife_;
};

}  // namespace monitra::desktop
