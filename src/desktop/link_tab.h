#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"

namespace monitra::desktop {

/// The tab "PC-Link".
class LinkTab : public QWidget {
 public:
  explicit LinkTab(const WidgetMaker& widgets);

 private:
  QWidget* phaseFrame(int motor);
  QWidget* loadFrame();
  QLayout* loadDisplay();
  QLayout* loadBar();
  QWidget* permit(shell::ControlName name, QColor ground, QColor words);
  QWidget* warning();

  WidgetMaker widgets_;
};

}  // namespace monitra::desktop
