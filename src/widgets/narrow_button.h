#pragma once

#include <QPushButton>

namespace monitra::widgets {

/// A button that takes no more width than its words.
class NarrowButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  QSize sizeHint() const override {
    constexpr int air = 20;
    const int width = fontMetrics().size(Qt::TextShowMnemonic, text()).width() + air;
    return {width, QPushButton::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace monitra::widgets
