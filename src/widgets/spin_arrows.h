#pragma once

#include <QWidget>

class QToolButton;

namespace monitra::widgets {

/// Two small arrows, one above the other. A held arrow repeats. With the focus the up and down keys
/// and the wheel press them too; without it the wheel must not change a value unnoticed.
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

  /// The keys and the wheel press the arrows also at the one widget that they stand beside.
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
  void pressByWheel(const QWheelEvent& event);

  bool isFocused() const;

  const QWidget* served_ = nullptr;
  int min_ = 0;
  int max_ = 0;
  int value_ = 0;
  int wheel_ = 0;  ///< turned since the last press, in eighths of a degree
};

}  // namespace monitra::widgets
