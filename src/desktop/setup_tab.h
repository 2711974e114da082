#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"

class QGridLayout;
class QHBoxLayout;

namespace monitra::desktop {

/// The tab "Motor Setup".
class SetupTab : public QWidget {
 public:
  explicit SetupTab(const WidgetMaker& widgets);

 private:
  QLayout* headline();
  QLayout* diagramRow();
  QLayout* timingGrid();
  void addTimingField(QGridLayout& grid, int axis, int group);
  struct DerivedColumn;
  void addDerivedColumn(QGridLayout& grid, const DerivedColumn& column, int at);
  QLayout* tuningRow();
  QLayout* tuningFields();
  QLayout* path();
  QLayout* tolerance();
  QHBoxLayout* spinField(NameOf<QLineEdit> box, NameOf<widgets::SpinArrows> arrows);
  QLayout* wholeStepBoxes();
  QLayout* uploadRow();

  /// Width of a grid column, and what one twip of the drawing measures beside it.
  int columnWidth() const;
  double scale() const;

  WidgetMaker widgets_;
};

}  // namespace monitra::desktop
