#pragma once

#include <QPushButton>

namespace monitra::widgets {

/// A button that takes no more width than its words.
class NarrowButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  /// From now on it takes little more height than a line of text, too.
  void makeLow() {
    low_ = true;
    setSizePolicy(sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
  }

  QSize sizeHint() const override {
    constexpr int air = 20;
    constexpr int frame = 4;
    const int width = fontMetrics().size(Qt::TextShowMnemonic, text()).width() + air;
    return {width, low_ ? fontMetrics().height() + frame : QPushButton::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  bool low_ = false;
};

}  // namespace monitra::widgets
