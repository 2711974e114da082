#pragma once

#include <QLabel>

namespace monitra::widgets {

/// A light with words behind it, which are its text.
class Lamp : public QLabel {
 public:
  explicit Lamp(QWidget* parent = nullptr);

  void setOn(bool on);
  bool isOn() const { return on_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int lightSize() const;

  bool on_ = false;
};

}  // namespace monitra::widgets
