#include "desktop/test_tab.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "desktop/jog_area.h"
#include "desktop/picture_sizes.h"
#include "widgets/looks.h"
#include "widgets/picture.h"
#include "widgets/tick_timer.h"

namespace monitra::desktop {

using namespace widgets;

TestTab::TestTab(const WidgetMaker& widgets) : widgets_(widgets) {
  new TickTimer(widgets.lap().jog.Timer1, this);
  auto* const columns = new QHBoxLayout(this);
  columns->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  columns->addLayout(jogColumn(), 1);
  columns->addWidget(bitFrame());
}

/// The titles with the choice of the port, the arrows, the generator.
QLayout* TestTab::jogColumn() {
  QLabel* const title = bold(widgets_.make<QLabel>("Label20"));
  setTextColour(title, QColor(0xD0, 0x10, 0x10), QColor(0xFF, 0x60, 0x60));
  QLabel* const warning = widgets_.make<QLabel>("Label30");
  setTextColour(warning, QColor(0x90, 0x00, 0x00), QColor(0xE0, 0x80, 0x80));
  auto* const titles = new QVBoxLayout;
  titles->setSpacing(smallGap);
  titles->addWidget(title);
  titles->addWidget(warning);
  titles->addStretch();
  QHBoxLayout* const top = flatRow();
  top->addLayout(titles);
  top->addStretch();
  top->addLayout(portChoice());
  top->addStretch();
  auto* const column = new QVBoxLayout;
  column->setSpacing(smallGap);
  column->addLayout(top);
  column->addStretch();
  column->addWidget(new JogArea(widgets_, logicalDpiX() / 1440.0));
  column->addStretch();
  column->addLayout(generatorRow());
  return column;
}

QLayout* TestTab::generatorRow() {
  constexpr int gap = 24;
  constexpr int rateFigures = 6;
  auto* const inversions = new QVBoxLayout;
  for (int axis = 0; axis < 3; ++axis) inversions->addWidget(widgets_.make("Invert", axis));
  auto* const generator = new QVBoxLayout;
  generator->addWidget(widgets_.make("SpindleGomb"));
  QHBoxLayout* const rate = flatRow();
  rate->addWidget(widgets_.make("Label18"));
  rate->addWidget(asNumberBox(widgets_.make<QLineEdit>("Seb"), rateFigures));
  rate->addWidget(widgets_.make("Label17"));
  generator->addLayout(rate);
  generator->addWidget(widgets_.make("Impulzus"));
  QHBoxLayout* const row = flatRow();
  row->addLayout(inversions);
  row->addSpacing(gap);
  row->addLayout(generator);
  row->addStretch();
  return row;
}

QLayout* TestTab::portChoice() {
  constexpr int sideAir = 40;
  auto* const list = widgets_.make<QListWidget>("LPT");
  giveThinFrame(list);
  list->setFixedHeight(list->sizeHintForRow(0) * list->count() + 2 * list->frameWidth() + 2);
  list->setFixedWidth(list->sizeHintForColumn(0) + sideAir);
  auto* const board = widgets_.make<Picture>({"Picture2", 0});
  board->show(QStringLiteral(":/pictures/board.svg"), boardPicture);
  QLabel* const version = widgets_.make<QLabel>("PCBV");
  version->setAlignment(Qt::AlignCenter);
  auto* const address = new QVBoxLayout;
  address->setSpacing(smallGap);
  address->addWidget(widgets_.make("Label19"));
  address->addWidget(list);
  address->addStretch();
  auto* const panel = new QVBoxLayout;
  panel->setSpacing(smallGap);
  panel->addWidget(board);
  panel->addWidget(version);
  panel->addStretch();
  QHBoxLayout* const row = flatRow();
  row->addLayout(address);
  row->addSpacing(2 * pageMargin);
  row->addLayout(panel);
  return row;
}

QWidget* TestTab::bitFrame() {
  auto* const frame = widgets_.make<QGroupBox>("Frame4");
  auto* const column = new QVBoxLayout(frame);
  column->setSpacing(3);
  const auto addAddress = [this, column](NameOf<QLabel> name) {
    QLabel* const label = bold(widgets_.make(name));
    label->setAlignment(Qt::AlignCenter);
    column->addWidget(label);
  };
  addAddress("Cim1");
  for (int bit = 0; bit < 8; ++bit) column->addWidget(widgets_.make("Bitcim", bit));
  column->addSpacing(4);
  addAddress("Cim2");
  column->addWidget(widgets_.make({"Bitcim", 8}));
  column->addStretch();
  column->addWidget(widgets_.make("Kuld"));
  column->addWidget(widgets_.make("Torles"));
  return frame;
}

}  // namespace monitra::desktop
