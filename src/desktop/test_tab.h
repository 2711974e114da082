#pragma once

#include <QWidget>

#include "bench/bit_panel.h"
#include "bench/jog_panel.h"
#include "link/port_panel.h"

namespace monitra::desktop {

/// The tab "Teszt". The panels must live as long as the widget.
class TestTab : public QWidget {
 public:
  TestTab(bench::JogPanel& jog, bench::BitPanel& bits, link::PortPanel& port,
          QWidget* parent = nullptr);

 private:
  QLayout* jogColumn(bench::JogPanel& jog);
  QLayout* generatorRow(bench::JogPanel& jog);
  QLayout* portColumn(link::PortPanel& port);
  QWidget* bitFrame(bench::BitPanel& bits, link::PortPanel& port);
};

}  // namespace monitra::desktop
