#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"

namespace monitra::desktop {

/// The tab "Infó".
class InfoTab : public QWidget {
 public:
  explicit InfoTab(const WidgetMaker& widgets);
};

}  // namespace monitra::desktop
