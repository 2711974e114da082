#pragma once

#include <QLabel>
#include <QWidget>

#include "controls/controls.h"

namespace monitra::desktop {

/// A line of text that never asks for more width than it gets: what doesn't fit is cut with an
/// ellipsis, and the tooltip shows the whole.
class StatusLine : public QLabel {
 public:
  StatusLine(std::string_view name, controls::Label& control, QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The strip below the tabs: the program's name, the maker, and the status lines.
/// The controls must live as long as the widget.
class Footer : public QWidget {
 public:
  Footer(controls::Label& PortAllapot, controls::Label& Esemeny, QWidget* parent = nullptr);
};

}  // namespace monitra::desktop
