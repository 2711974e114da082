#pragma once

#include <QPushButton>

#include "controls/controls.h"

namespace monitra::desktop {

/// An arrow that acts while it is held, by any button of the mouse or by the space bar. It comes up
/// as soon as nobody can be sure that it is still held: at the loss of the focus or of the mouse
/// grab, at a dialog, and when its window is left, minimised, hidden or closed.
/// Dragging the mouse away doesn't let it go.
class JogButton : public QPushButton {
 public:
  /// The side is in pixels. The control must outlive it.
  JogButton(Qt::ArrowType arrow, int side, controls::HoldButton& control);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void checkMouse(Qt::MouseButtons buttons);

  const Qt::ArrowType arrow_;
  controls::HoldButton& control_;
  bool byKey_ = false;  ///< the space bar holds it
};

}  // namespace monitra::desktop
