#include "desktop/test_tab.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "desktop/widgets.h"

namespace monitra::desktop {

TestTab::TestTab(bench::JogPanel& jog, link::PortPanel& port, QWidget* parent) : QWidget(parent) {
  auto* columns = new QHBoxLayout(this);
  columns->addWidget(jogColumn(jog), 1);
  columns->addWidget(portColumn(port));
}

QWidget* TestTab::jogColumn(bench::JogPanel& jog) {
  auto* widget = new QWidget;
  auto* column = new QVBoxLayout(widget);
  for (int axis = 0; axis < 3; ++axis) {
    column->addWidget(bound<QCheckBox>("Invert", jog.Invert[axis], axis));
  }
  auto* rate = flatRow();
  rate->addWidget(wordedLabel("Label18"));
  rate->addWidget(numberBox("Seb", jog.Seb, 6));
  rate->addWidget(wordedLabel("Label17"));
  rate->addStretch();
  column->addSpacing(8);
  column->addLayout(rate);
  column->addStretch();
  return widget;
}

QWidget* TestTab::portColumn(link::PortPanel& port) {
  auto* widget = new QWidget;
  auto* column = new QVBoxLayout(widget);
  auto* list = bound<QListWidget>("LPT", port.LPT);
  const int rows = static_cast<int>(port.LPT.Items.size());
  list->setFixedHeight(list->sizeHintForRow(0) * rows + 2 * list->frameWidth() + 2);
  list->setFixedWidth(list->sizeHintForColumn(0) + 40);
  QLabel* const board = bound<QLabel>("PCBV", port.PCBV);
  board->setAlignment(Qt::AlignCenter);
  column->addWidget(wordedLabel("Label19"));
  column->addWidget(list);
  column->addWidget(board);
  column->addStretch();
  return widget;
}

}  // namespace monitra::desktop
