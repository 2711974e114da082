#pragma once

#include <QWidget>

class QToolButton;

namespace monitra::widgets {

/// Two small arrows, one above the other. A held arrow or key repeats, faster and faster. With the
/// focus the keys and the wheel press them too: up and down once, PageUp and PageDown ten times,
/// Home and End up to the limit; without it the wheel must not change a value unnoticed. Several
/// presses in one end where one of them has left the value as it was.
class SpinArrows : public QWidget {
  Q_OBJECT

 public:
  explicit SpinArrows(QWidget* parent = nullptr);

  /// What the arrows step, for a screen reader.
  void setRange(int min, int max);
  void setValue(int value);
  int min() const { return min_; }
  int max() const { return max_; }
  int value() const { return value_; }

  /// The keys and the wheel press the arrows also at the one widget that they stand beside. Where
  /// that can be typed in, Home and End stay its own.
  void serve(QWidget* widget);

  /// Width of the arrows beside a widget with this font.
  static int widthBeside(const QFontMetrics& font);

 Q_SIGNALS:
  void upPressed();
  void downPressed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolButton* addArrow(Qt::ArrowType type);
  bool pressByKey(const QKeyEvent& event);
  /// Upwards for a number above 0, else downwards.
  void press(int times);
  /// How many presses the next repetition of a held arrow or key is.
  int repetition();
  void pressByWheel(const QWheelEvent& event);

  bool isFocused() const;

  const QWidget* served_ = nullptr;
  int min_ = 0;
  int max_ = 0;
  int value_ = 0;
  int repeats_ = 0;  ///< of the arrow or key that is held
  int wheel_ = 0;    ///< turned since the last press, in eighths of a degree
};

}  // namespace monitra::widgets
