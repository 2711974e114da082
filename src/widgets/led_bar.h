#pragma once

#include <QWidget>

#include "controls/controls.h"

namespace monitra::widgets {

/// A column of lights that fills from its foot. Each light has the colour of its own place: green
/// up to the first limit of the meter, yellow up to the second, red above.
class LedBar : public QWidget {
 public:
  static constexpr int full = 100;

  explicit LedBar(QWidget* parent = nullptr);

  /// The control must outlive it.
  void follow(controls::LedMeter& meter);

  /// From 0 to full.
  int level() const { return meter_ != nullptr ? meter_->Level.get() : 0; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  controls::LedMeter* meter_ = nullptr;
};

}  // namespace monitra::widgets
