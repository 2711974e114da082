#pragma once

#include <QWidget>

#include "timing/setup_panel.h"

class QBoxLayout;
class QGridLayout;

namespace monitra::desktop {

/// The tab "Motor Setup". The panel must live as long as the widget.
class SetupTab : public QWidget {
  Q_OBJECT

 public:
  explicit SetupTab(timing::SetupPanel& panel, QWidget* parent = nullptr);

 private:
  QWidget* headline();
  QWidget* diagramRow();
  QWidget* timingGrid();
  void addTimingField(QGridLayout& grid, int i);
  void addDerived(QGridLayout& grid);
  QWidget* tuningRow();
  QWidget* tuningFields();
  QWidget* wholeStepBoxes();
  QWidget* uploadRow();

  /// Width of a grid column, and what one twip of the drawing measures beside it.
  int columnWidth() const;
  double scale() const;

  timing::SetupPanel& panel_;
};

}  // namespace monitra::desktop
