#pragma once

#include <QWidget>

#include "timing/setup_panel.h"

class QGridLayout;

namespace monitra::desktop {

/// The tab "Motor Setup". The panel must live as long as the widget.
class SetupTab : public QWidget {
 public:
  explicit SetupTab(timing::SetupPanel& panel, QWidget* parent = nullptr);

 private:
  QWidget* headline();
  QWidget* diagramRow();
  QWidget* timingGrid();
  void addTimingField(QGridLayout& grid, int i);
  struct DerivedColumn;
  void addDerived(QGridLayout& grid);
  void addDerivedColumn(QGridLayout& grid, const DerivedColumn& column, int at);
  QWidget* tuningRow();
  QWidget* tuningFields();
  QLayout* path();
  QLayout* tolerance();
  QWidget* wholeStepBoxes();
  QWidget* uploadRow();

  /// Width of a grid column, and what one twip of the drawing measures beside it.
  int columnWidth() const;
  double scale() const;

  timing::SetupPanel& panel_;
};

}  // namespace monitra::desktop
