#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"

namespace monitra::desktop {

/// The tab "Teszt".
class TestTab : public QWidget {
 public:
  explicit TestTab(const WidgetMaker& widgets);

 private:
  QLayout* jogColumn();
  QLayout* generatorRow();
  QLayout* portChoice();
  QWidget* bitFrame();

  WidgetMaker widgets_;
};

}  // namespace monitra::desktop
