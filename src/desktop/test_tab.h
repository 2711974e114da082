#pragma once

#include <QWidget>

#include "bench/jog_panel.h"
#include "link/port_panel.h"

namespace monitra::desktop {

/// The tab "Teszt". The panels must live as long as the widget.
class TestTab : public QWidget {
 public:
  TestTab(bench::JogPanel& jog, link::PortPanel& port, QWidget* parent = nullptr);

 private:
  QWidget* jogColumn(bench::JogPanel& jog);
  QWidget* portColumn(link::PortPanel& port);
};

}  // namespace monitra::desktop
