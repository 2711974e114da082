#include "desktop/test_tab.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "desktop/jog_area.h"
#include "desktop/tick_timer.h"
#include "desktop/widgets.h"

namespace monitra::desktop {

TestTab::TestTab(bench::JogPanel& jog, bench::BitPanel& bits, link::PortPanel& port,
                 QWidget* parent)
    : QWidget(parent) {
  new TickTimer(jog.Timer1, this);
  auto* columns = new QHBoxLayout(this);
  columns->setSpacing(14);
  columns->addLayout(jogColumn(jog), 1);
  columns->addLayout(portColumn(port));
  columns->addWidget(bitFrame(bits, port));
}

QLayout* TestTab::jogColumn(bench::JogPanel& jog) {
  auto* column = new QVBoxLayout;
  QLabel* const title = wordedLabel("Label20");
  makeBold(title);
  setTextColour(title, QColor(0xD0, 0x10, 0x10), QColor(0xFF, 0x60, 0x60));
  QLabel* const warning = wordedLabel("Label30");
  setTextColour(warning, QColor(0x90, 0x00, 0x00), QColor(0xE0, 0x80, 0x80));
  column->addWidget(title);
  column->addWidget(warning);
  column->addStretch();
  column->addWidget(new JogArea(jog, logicalDpiX() / 1440.0));
  column->addStretch();
  column->addLayout(generatorRow(jog));
  return column;
}

QLayout* TestTab::generatorRow(bench::JogPanel& jog) {
  auto* row = flatRow();
  auto* inversions = new QVBoxLayout;
  for (int axis = 0; axis < 3; ++axis) {
    inversions->addWidget(bound<QCheckBox>("Invert", jog.Invert[axis], axis));
  }
  auto* rate = flatRow();
  rate->addWidget(wordedLabel("Label18"));
  rate->addWidget(numberBox("Seb", jog.Seb, 6));
  rate->addWidget(wordedLabel("Label17"));
  auto* generator = new QVBoxLayout;
  generator->addWidget(wordedButton<QPushButton>("SpindleGomb", jog.SpindleGomb));
  generator->addLayout(rate);
  generator->addWidget(wordedButton<QPushButton>("Impulzus", jog.Impulzus));
  row->addLayout(inversions);
  row->addSpacing(24);
  row->addLayout(generator);
  row->addStretch();
  return row;
}

QLayout* TestTab::portColumn(link::PortPanel& port) {
  auto* column = new QVBoxLayout;
  auto* list = bound<QListWidget>("LPT", port.LPT);
  const int rows = static_cast<int>(port.LPT.Items.size());
  list->setFixedHeight(list->sizeHintForRow(0) * rows + 2 * list->frameWidth() + 2);
  list->setFixedWidth(list->sizeHintForColumn(0) + 40);
  QLabel* const board = bound<QLabel>("PCBV", port.PCBV);
  board->setAlignment(Qt::AlignCenter);
  column->addWidget(wordedLabel("Label19"));
  column->addWidget(list);
  column->addStretch();
  column->addWidget(picture("Picture2(0)", ":/pictures/board.svg", {104, 60}));
  column->addWidget(board);
  column->addStretch();
  return column;
}

QWidget* TestTab::bitFrame(bench::BitPanel& bits, link::PortPanel& port) {
  QGroupBox* const frame = wordedFrame("Frame4");
  auto* column = new QVBoxLayout(frame);
  column->setSpacing(3);
  const auto addAddress = [column](std::string_view name, controls::Label& control) {
    QLabel* const label = bound<QLabel>(name, control);
    makeBold(label);
    label->setAlignment(Qt::AlignCenter);
    column->addWidget(label);
  };
  addAddress("Cim1", port.Cim1);
  for (int i = 0; i < 8; ++i) {
    column->addWidget(bound<QCheckBox>("Bitcim", port.Bitcim[i], i));
  }
  column->addSpacing(4);
  addAddress("Cim2", port.Cim2);
  column->addWidget(bound<QCheckBox>("Bitcim(8)", port.Bitcim[8]));
  column->addStretch();
  column->addWidget(wordedButton<QPushButton>("Kuld", bits.Kuld));
  column->addWidget(wordedButton<QPushButton>("Torles", bits.Torles));
  return frame;
}

}  // namespace monitra::desktop
