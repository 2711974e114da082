#pragma once

#include <QWidget>

#include "bench/load_panel.h"
#include "bench/phase_panel.h"

namespace monitra::desktop {

/// The tab "PC-Link". The panels must live as long as the widget.
class LinkTab : public QWidget {
 public:
  LinkTab(bench::PhasePanel& phases, bench::LoadPanel& load, QWidget* parent = nullptr);

 private:
  QWidget* phaseFrame(bench::PhasePanel& phases, int motor);
  QWidget* loadFrame(bench::LoadPanel& load);
  QLayout* loadDisplay(bench::LoadPanel& load);
  QLayout* loadBar(bench::LoadPanel& load);
  QWidget* warning(bench::LoadPanel& load);
};

}  // namespace monitra::desktop
