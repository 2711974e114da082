#pragma once

#include <QTimer>
#include <QWidget>

#include "controls/controls.h"

namespace monitra::widgets {

/// An arrow that acts while a button of the mouse or the space bar holds it; dragging the mouse
/// away doesn't let it go. It comes up as soon as nobody can be sure that it is still held: at the
/// loss of the focus or of the mouse grab, at a dialog, at any key, and when its window is left,
/// minimised, hidden or closed, or ends. Several of these come together, so that none of them is
/// relied on alone.
///
/// A window manager can swallow the release of a key. So a press of the space bar holds it for a
/// moment only, and behind it each repetition of the same press does: a short move, a pause, then
/// on and on, as the keyboard repeats. What lets it go ends that, and any other key lets it go.
///
/// While it is held the display is asked for a sign of life: a display that hangs delivers no
/// release, so the thread waits for it, and with the thread the pulses.
class JogButton : public QWidget {
  Q_OBJECT

 public:
  /// For so long one press of the space bar, or one repetition, holds it at most.
  static constexpr int keyMilliseconds = 150;

  explicit JogButton(QWidget* parent = nullptr);
  /// It comes up first.
  ~JogButton() override;

  /// The direction of its arrow, and the length of its side in pixels.
  void setArrow(Qt::ArrowType arrow, int side);

  /// The control must outlive it.
  void serve(controls::HoldButton& control);

  /// Holds it for as long as one press of the space bar does, where the user can see and reach it:
  /// not on a hidden tab, in a minimised window or under a dialog.
  void nudge();

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
  void release();
  bool isHeld() const { return control_ != nullptr && control_->Held; }
  void showHeld();

  Qt::ArrowType arrow_ = Qt::NoArrow;
  controls::HoldButton* control_ = nullptr;
  QTimer signOfLife_;
  QTimer keyHold_;        ///< runs while a key holds it
  bool repeats_ = false;  ///< repetitions of the space bar's present press hold it again
};

}  // namespace monitra::widgets
