#pragma once

#include <QWidget>

#include "controls/controls.h"

namespace monitra::desktop {

/// A column of lights that fills from its foot. Each light has the colour of its own place: green
/// up to the first limit of the meter, yellow up to the second, red above.
class LedBar : public QWidget {
 public:
  /// The control must outlive it, and not change after it.
  explicit LedBar(controls::LedMeter& control, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  controls::LedMeter& control_;
};

}  // namespace monitra::desktop
