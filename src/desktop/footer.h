#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"

class QHBoxLayout;
class QVBoxLayout;

namespace monitra::desktop {

/// The strip below the tabs: the program's name, the marks of the Setup, the maker; the status of
/// the port; what the last operation came to; what stands on the pins.
class Footer : public QWidget {
 public:
  explicit Footer(const WidgetMaker& widgets);

 private:
  QHBoxLayout* names(const WidgetMaker& widgets);
  QHBoxLayout* port(const WidgetMaker& widgets);
  QHBoxLayout* lamps(const WidgetMaker& widgets);
  QVBoxLayout* marks(const WidgetMaker& widgets);
};

}  // namespace monitra::desktop
