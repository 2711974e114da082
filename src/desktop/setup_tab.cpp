#include "desktop/setup_tab.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/line_drawing.h"
#include "desktop/picture_sizes.h"
#include "timing/setup.h"
#include "widgets/looks.h"
#include "widgets/picture.h"
#include "widgets/spin_arrows.h"
#include "widgets/svg_icon.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

constexpr int axes = 3;
constexpr int groups = timing::timingFields / axes;
constexpr int columnTwips = 960;
constexpr int firstColumnTwips = 600;
constexpr int rowTwips = 600;

/// Green figures on black, in every theme.
void makeInstrument(QLineEdit* box) {
  QPalette colours = box->palette();
  colours.setColor(QPalette::Base, Qt::black);
  colours.setColor(QPalette::Text, QColor(0x00, 0xF0, 0x40));
  box->setPalette(colours);
  QFont font = box->font();
  font.setBold(true);
  box->setFont(font);
  // The arrows beside it take the keys.
  box->setFocusPolicy(Qt::ClickFocus);
}

}  // namespace

/// A frame of derived values, the labels in it by axis, and the widest text that they must hold.
struct SetupTab::DerivedColumn {
  shell::ControlName frame;
  shell::ControlName labels[axes];
  const char* widest;
};

SetupTab::SetupTab(const WidgetMaker& widgets) : widgets_(widgets) {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  rows->setSpacing(smallGap);
  rows->addLayout(diagramRow());
  rows->addLayout(timingGrid());
  rows->addStretch();
  rows->addLayout(tuningRow());
  rows->addStretch();
  rows->addLayout(uploadRow());
}

int SetupTab::columnWidth() const {
  constexpr int gap = 6;
  const int field = numberBoxWidth(*this, 3) + SpinArrows::widthBeside(fontMetrics());
  return qMax(qRound(logicalDpiX() * columnTwips / 1440.0), field + gap);
}

double SetupTab::scale() const {
  return static_cast<double>(columnWidth()) / columnTwips;
}

QLayout* SetupTab::headline() {
  QHBoxLayout* const row = flatRow();
  row->addWidget(widgets_.make("Label23"));
  row->addWidget(widgets_.make("Cim"));
  row->addStretch();
  return row;
}

QLayout* SetupTab::diagramRow() {
  constexpr QRect area(0, 705, 5580, 1350);
  QHBoxLayout* const row = flatRow();
  auto* const curve = new QVBoxLayout;
  curve->setSpacing(smallGap);
  curve->addLayout(headline());
  curve->addWidget(
      new LineDrawing(widgets_, {area, shell::diagramLines(), shell::diagramHeads()}, scale()));
  row->addLayout(curve);
  row->addStretch();
  auto* const state = new QVBoxLayout;
  auto* const motor = widgets_.make<Picture>({"Picture1", 0});
  motor->show(QStringLiteral(":/pictures/motor.svg"), motorPicture);
  state->setSpacing(smallGap);
  state->addStretch();
  state->addWidget(motor, 0, Qt::AlignRight);
  state->addWidget(bold(widgets_.make<QLabel>("lepes")));
  state->addWidget(bold(widgets_.make<QLabel>("Vegallas")));
  row->addLayout(state);
  return row;
}

QLayout* SetupTab::timingGrid() {
  constexpr DerivedColumn columns[] = {
      {"Frame1", {{"Csucsf", 0}, {"Csucsf", 1}, {"Csucsf", 2}}, "88888.8 S/s"},
      {"Frame2", {{"Nhatar", 0}, {"Nhatar", 1}, {"Nhatar", 2}}, "88888.8 S/s"},
      {"Frame3", {"Xttarto", "Yttarto", "Zttarto"}, "88888.8 Hz (88.8%)"},
  };
  constexpr int headPart = 4;  // tenths of a column
  auto* const grid = new QGridLayout;
  grid->setSpacing(0);
  grid->setColumnMinimumWidth(0, qRound(firstColumnTwips * scale()));
  grid->setRowMinimumHeight(0, fontMetrics().height());
  grid->setRowMinimumHeight(axes + 1, 2);
  for (int axis = 0; axis < axes; ++axis) {
    QLabel* const head = bold(widgets_.make<QLabel>("Label6", axis));
    head->setFixedWidth(columnWidth() * headPart / 10);
    grid->addWidget(head, axis + 1, 0, Qt::AlignCenter);
    grid->setRowMinimumHeight(axis + 1, qRound(rowTwips * scale()));
    for (int group = 0; group < groups; ++group) addTimingField(*grid, axis, group);
  }
  int at = groups + 2;
  for (const DerivedColumn& column : columns) {
    addDerivedColumn(*grid, column, at);
    at += 2;
  }
  return grid;
}

void SetupTab::addTimingField(QGridLayout& grid, int axis, int group) {
  constexpr ArrayOf<QLineEdit> boxes[] = {"TF", "T1", "T2", "T3"};
  const int i = axes * group + axis;
  QHBoxLayout* const cell = flatRow();
  cell->setSpacing(0);
  auto* const box = asNumberBox(widgets_.make(boxes[group], i), 3);
  makeInstrument(box);
  cell->addStretch();
  cell->addWidget(box);
  auto* const arrows = widgets_.make<SpinArrows>("FolLe", i);
  arrows->serve(box);
  cell->addWidget(arrows);
  cell->addStretch();
  grid.addLayout(cell, axis + 1, group + 1);
  grid.setColumnMinimumWidth(group + 1, columnWidth());
}

void SetupTab::addDerivedColumn(QGridLayout& grid, const DerivedColumn& column, int at) {
  constexpr int gap = 6;
  constexpr int padding = 8;
  // The frame and its labels share the grid's cells, so that each axis reads as one line.
  grid.addWidget(widgets_.make(column.frame), 0, at, axes + 2, 1);
  grid.setColumnMinimumWidth(at - 1, gap);
  grid.setColumnStretch(at, 1);
  const int widest = fontMetrics().horizontalAdvance(QString::fromLatin1(column.widest));
  grid.setColumnMinimumWidth(at, widest + padding);
  for (int axis = 0; axis < axes; ++axis) {
    auto* const label = dynamic_cast<QLabel*>(widgets_.make(column.labels[axis]));
    // Of a fixed size, or each new text would have the whole tab laid out and painted anew.
    label->setFixedSize(widest + smallGap, label->sizeHint().height());
    label->setAlignment(Qt::AlignCenter);
    grid.addWidget(label, axis + 1, at, Qt::AlignCenter);
    label->raise();
  }
}

QLayout* SetupTab::tuningRow() {
  QHBoxLayout* const row = flatRow();
  constexpr int gap = 6;
  row->addLayout(tuningFields());
  row->addSpacing(gap);
  row->addStretch();
  row->addLayout(wholeStepBoxes());
  return row;
}

QLayout* SetupTab::tuningFields() {
  auto* const grid = new QGridLayout;
  grid->setSpacing(smallGap);
  auto* const mode = widgets_.make<QComboBox>("Funkcio");
  mode->setFocusPolicy(Qt::StrongFocus);
  mode->installEventFilter(new WheelNeedsFocus(mode));
  grid->addWidget(widgets_.make("Label5"), 0, 0);
  grid->addWidget(mode, 0, 1, Qt::AlignLeft);
  grid->addWidget(widgets_.make("Label7"), 1, 0);
  grid->addLayout(path(), 1, 1);
  grid->addWidget(widgets_.make("Label11"), 2, 0);
  grid->addLayout(tolerance(), 2, 1);
  return grid;
}

QHBoxLayout* SetupTab::spinField(NameOf<QLineEdit> box, NameOf<SpinArrows> arrows) {
  constexpr int wholeFigures = 5;
  QHBoxLayout* const row = flatRow();
  row->setSpacing(2);
  auto* const typed = asNumberBox(widgets_.make(box), wholeFigures);
  auto* const pressed = widgets_.make(arrows);
  pressed->serve(typed);
  row->addWidget(typed);
  row->addWidget(pressed);
  row->addSpacing(smallGap);
  return row;
}

QLayout* SetupTab::path() {
  constexpr int typedFigures = 6;
  constexpr int lengthFigures = 5;
  QHBoxLayout* const row = spinField("Ut", "Utfolle");
  row->addWidget(widgets_.make("Label8"));
  auto* const perStep = asNumberBox(widgets_.make<QLineEdit>("Spm"), typedFigures);
  row->addWidget(perStep);
  row->addSpacing(smallGap);
  row->addWidget(widgets_.make("Label9"));
  QWidget* const length = widgets_.make("Uthossz");
  length->setFixedSize(numberBoxWidth(*this, lengthFigures), perStep->sizeHint().height());
  row->addWidget(length);
  row->addWidget(widgets_.make("Label10"));
  row->addStretch();
  return row;
}

QLayout* SetupTab::tolerance() {
  QHBoxLayout* const row = spinField("Tures", "Turesfolle");
  row->addWidget(widgets_.make("Label12"));
  row->addStretch();
  return row;
}

QLayout* SetupTab::wholeStepBoxes() {
  auto* const column = new QVBoxLayout;
  column->setSpacing(smallGap);
  for (const auto name :
       std::initializer_list<shell::ControlName>{"Label31", "Xegesz", "Yegesz", "Zegesz"}) {
    column->addWidget(widgets_.make(name));
  }
  return column;
}

QLayout* SetupTab::uploadRow() {
  constexpr int gap = 10;
  constexpr QSize icon{24, 24};
  QHBoxLayout* const row = flatRow();
  auto* const button = widgets_.make<QPushButton>("Letolt");
  button->setIcon(svgIcon(QStringLiteral(":/pictures/upload.svg")));
  button->setIconSize(icon);
  row->addWidget(button);
  row->addSpacing(gap);
  row->addWidget(widgets_.make("Label22"));
  row->addWidget(widgets_.make("Bar"), 1);
  row->addWidget(widgets_.make("Label15"));
  row->addWidget(widgets_.make("Verz"));
  return row;
}

}  // namespace monitra::desktop
