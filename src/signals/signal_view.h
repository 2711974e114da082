#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "signals/signal_painter.h"
#include "signals/time_scale.h"
#include "wire/trace.h"

class QScrollBar;

namespace monitra::signals {

/// The levels of a recording's wires over time, a row for each, the serial line on top with what a
/// controller makes of it above. Wheel, keys and the scroll bar move and zoom it; two cursors, A
/// and B, stay where they are put.
class SignalView : public QWidget {
  Q_OBJECT

 public:
  explicit SignalView(QWidget* parent = nullptr);

  /// The recording to show from now on: its end where the view follows, else all of it; null for
  /// none. It must outlive the view or be taken away first.
  void setTrace(const wire::Trace* trace);

  /// The recording has grown, or another board hangs there. A view that follows shows its end.
  void refresh();

  /// Whether the end of the recording stays in view. Looking back stops it.
  bool follows() const { return follows_; }
  void setFollows(bool follows);

  void fit();
  /// Around the middle, or the end where it follows; above 1 is closer.
  void zoom(double factor);
  /// This moment in the middle.
  void goTo(wire::Time time);
  /// This span, and a little on both sides of it.
  void showSpan(wire::Time from, wire::Time to);

  wire::Time middle() const { return scale_.from() + scale_.span() / 2; }
  const TimeScale& scale() const { return scale_; }

  std::optional<wire::Time> cursor(int which) const { return cursors_[at(which)]; }  ///< 0: A, 1: B
  void setCursor(int which, std::optional<wire::Time> time);
  int row() const;  ///< the chosen wire; -1 without a recording

  /// Width, period and frequency under the pointer, without one those of the chosen row in the
  /// middle; and what the cursors tell of the chosen row: distance, and least, mean and greatest
  /// width between them. Hungarian, one line each, empty where there is nothing to tell.
  QString pointedText() const;
  QString cursorText() const;

  std::function<void()> pointed;  ///< pointedText() or cursorText() may be another
  std::function<void()> moved;    ///< another part is shown, or follows() has changed

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  static std::size_t at(int which) { return static_cast<std::size_t>(which); }

  void readRows();
  void arrange();
  void showPart(wire::Time from, wire::Time span);
  void lookBack();
  void shown();
  void scrollBy(double pixels);
  void zoomAt(double factor, double x);
  bool moveByKey(int key);
  bool setByKey(int key);
  void choose(std::size_t number);
  void tellByKey();
  std::optional<std::size_t> rowAt(QPoint where) const;
  wire::Time timeAt(QPoint where) const;
  std::size_t figuresRow() const;

  const wire::Trace* trace_ = nullptr;
  std::vector<Row> rows_;
  std::array<std::string, wire::maxWires> names_;  ///< as the rows have them
  Layout layout_;
  TimeScale scale_;
  QScrollBar* bar_;
  bool arranging_ = false;  ///< the bar follows the scale
  bool follows_ = true;
  std::size_t chosen_ = 0;
  std::array<std::optional<wire::Time>, 2> cursors_;
  std::optional<QPoint> pointer_;
  std::optional<QPoint> pressed_;
  bool dragging_ = false;
};

}  // namespace monitra::signals
