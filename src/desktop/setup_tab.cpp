#include "desktop/setup_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <array>

#include "desktop/line_drawing.h"
#include "desktop/spin_arrows.h"
#include "desktop/widgets.h"

namespace monitra::desktop {

namespace {

constexpr int columnTwips = 960;
constexpr int firstColumnTwips = 600;
constexpr int rowTwips = 600;

/// Green figures on black, in every theme.
void makeInstrument(QLineEdit* box) {
  QPalette colours = box->palette();
  colours.setColor(QPalette::Base, Qt::black);
  colours.setColor(QPalette::Text, QColor(0x00, 0xF0, 0x40));
  box->setPalette(colours);
  makeBold(box);
}

constexpr int spinFieldFigures = 6;
constexpr int spinFieldGap = 10;

/// A row that begins with a box that can be typed into and its arrows.
QHBoxLayout* spinField(std::string_view boxName, controls::TextBox& text,
                       std::string_view arrowsName, controls::SpinButton& spin) {
  QHBoxLayout* const row = flatRow();
  row->setSpacing(2);
  QLineEdit* const box = numberBox(boxName, text, spinFieldFigures);
  SpinArrows* const arrows = bound<SpinArrows>(arrowsName, spin);
  arrows->serve(box);
  row->addWidget(box);
  row->addWidget(arrows);
  row->addSpacing(spinFieldGap);
  return row;
}

}  // namespace

/// A frame of derived values: its labels by axis and the widest text that they must hold.
struct SetupTab::DerivedColumn {
  std::string_view frame;
  std::array<std::string_view, 3> names;
  std::array<controls::Label*, 3> labels;
  const char* widest;
};

SetupTab::SetupTab(timing::SetupPanel& panel, QWidget* parent) : QWidget(parent), panel_(panel) {
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(6);
  rows->addWidget(headline());
  rows->addWidget(diagramRow());
  rows->addWidget(timingGrid());
  rows->addStretch();
  rows->addWidget(tuningRow());
  rows->addStretch();
  rows->addWidget(uploadRow());
}

int SetupTab::columnWidth() const {
  constexpr int gap = 6;
  const int field = numberBoxWidth(*this, 3) + SpinArrows::widthBeside(fontMetrics());
  return qMax(qRound(logicalDpiX() * columnTwips / 1440.0), field + gap);
}

double SetupTab::scale() const {
  return static_cast<double>(columnWidth()) / columnTwips;
}

QWidget* SetupTab::headline() {
  auto* widget = new QWidget;
  auto* row = flatRow(widget);
  QLabel* const pwm = wordedLabel("Label23");
  pwm->setEnabled(false);
  row->addWidget(pwm);
  row->addWidget(bound<QLabel>("Cim", panel_.Cim));
  row->addStretch();
  return widget;
}

QWidget* SetupTab::diagramRow() {
  auto* widget = new QWidget;
  auto* row = flatRow(widget);
  const auto lineControl = [this](std::string_view name) -> controls::Line* {
    if (name == "LineVilor1") return &panel_.LineVilor1;
    if (name == "LineVilor2") return &panel_.LineVilor2;
    if (name == "LineVilor3") return &panel_.LineVilor3;
    if (name == "LineTarso1") return &panel_.LineTarso1;
    if (name == "LineTarso2") return &panel_.LineTarso2;
    return nullptr;
  };
  const QRect area(0, 660, 5580, 1440);
  row->addWidget(
      new LineDrawing({area, shell::diagramLines(), shell::diagramHeads()}, scale(), lineControl));
  row->addStretch();

  auto* state = new QVBoxLayout;
  QLabel* const edition = framedLabel("lepes", panel_.lepes);
  QLabel* const limits = framedLabel("Vegallas", panel_.Vegallas);
  makeBold(edition);
  makeBold(limits);
  state->addStretch();
  state->addWidget(picture("Picture1", ":/pictures/motor.svg", motorPicture, 0), 0, Qt::AlignRight);
  state->addWidget(edition);
  state->addWidget(limits);
  row->addLayout(state);
  return widget;
}

QWidget* SetupTab::timingGrid() {
  auto* widget = new QWidget;
  auto* grid = new QGridLayout(widget);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->setColumnMinimumWidth(0, qRound(firstColumnTwips * scale()));
  constexpr std::array<std::string_view, 3> rowHeads{"Label6(0)", "Label6(1)", "Label6(2)"};
  for (int axis = 0; axis < 3; ++axis) {
    QLabel* const head = wordedLabel(rowHeads[static_cast<std::size_t>(axis)]);
    head->setFrameShape(QFrame::StyledPanel);
    head->setAlignment(Qt::AlignCenter);
    makeBold(head);
    head->setFixedWidth(qRound(columnWidth() * 0.4));
    grid->addWidget(head, axis + 1, 0, Qt::AlignCenter);
    grid->setRowMinimumHeight(axis + 1, qRound(rowTwips * scale()));
  }
  for (int i = 0; i < timing::timingFields; ++i) addTimingField(*grid, i);
  addDerived(*grid);
  return widget;
}

void SetupTab::addTimingField(QGridLayout& grid, int i) {
  constexpr std::array<std::string_view, 4> groups{"TF", "T1", "T2", "T3"};
  auto* cell = flatRow();
  cell->setSpacing(0);
  QLineEdit* const box = numberBox(groups[static_cast<std::size_t>(i / 3)], panel_.box(i), 3, i);
  makeInstrument(box);
  box->setFocusPolicy(Qt::ClickFocus);
  cell->addStretch();
  cell->addWidget(box);
  cell->addWidget(bound<SpinArrows>("FolLe", panel_.FolLe[i], i));
  cell->addStretch();
  grid.addLayout(cell, i % 3 + 1, i / 3 + 1);
  grid.setColumnMinimumWidth(i / 3 + 1, columnWidth());
}

void SetupTab::addDerived(QGridLayout& grid) {
  const DerivedColumn columns[] = {
      {"Frame1",
       {"Csucsf", "Csucsf", "Csucsf"},
       {&panel_.Csucsf[0], &panel_.Csucsf[1], &panel_.Csucsf[2]},
       "88888.8 S/s"},
      {"Frame2",
       {"Nhatar", "Nhatar", "Nhatar"},
       {&panel_.Nhatar[0], &panel_.Nhatar[1], &panel_.Nhatar[2]},
       "88888.8 S/s"},
      {"Frame3",
       {"Xttarto", "Yttarto", "Zttarto"},
       {&panel_.Xttarto, &panel_.Yttarto, &panel_.Zttarto},
       "88888.8 Hz (88.8%)"},
  };
  int at = 6;
  for (const DerivedColumn& column : columns) {
    addDerivedColumn(grid, column, at);
    at += 2;
  }
  grid.setRowMinimumHeight(0, fontMetrics().height());
  grid.setRowMinimumHeight(4, 2);
}

void SetupTab::addDerivedColumn(QGridLayout& grid, const DerivedColumn& column, int at) {
  constexpr int gap = 6;
  constexpr int padding = 8;
  // The frame and its labels share the grid's cells, so that each axis reads as one line.
  auto* frame = new QGroupBox(caption(column.frame));
  describe(frame, column.frame);
  grid.addWidget(frame, 0, at, 5, 1);
  grid.setColumnMinimumWidth(at - 1, gap);
  grid.setColumnStretch(at, 1);
  grid.setColumnMinimumWidth(
      at, fontMetrics().horizontalAdvance(QString::fromLatin1(column.widest)) + padding);
  const bool array = column.names[0] == column.names[1];
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const int index = static_cast<int>(axis);
    QLabel* const label =
        bound<QLabel>(column.names[axis], *column.labels[axis], array ? index : -1);
    grid.addWidget(label, index + 1, at, Qt::AlignCenter);
    label->raise();
  }
}

QWidget* SetupTab::tuningRow() {
  auto* widget = new QWidget;
  auto* row = flatRow(widget);
  row->addWidget(tuningFields());
  row->addStretch();
  row->addWidget(wholeStepBoxes());
  return widget;
}

QWidget* SetupTab::tuningFields() {
  auto* widget = new QWidget;
  auto* grid = new QGridLayout(widget);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setVerticalSpacing(4);
  auto* mode = bound<QComboBox>("Funkcio", panel_.Funkcio);
  mode->setFocusPolicy(Qt::StrongFocus);
  mode->installEventFilter(new WheelNeedsFocus(mode));
  grid->addWidget(wordedLabel("Label5"), 0, 0);
  grid->addWidget(mode, 0, 1, Qt::AlignLeft);
  grid->addWidget(wordedLabel("Label7"), 1, 0);
  grid->addLayout(path(), 1, 1);
  grid->addWidget(wordedLabel("Label11"), 2, 0);
  grid->addLayout(tolerance(), 2, 1);
  return widget;
}

QLayout* SetupTab::path() {
  QHBoxLayout* const row = spinField("Ut", panel_.Ut, "Utfolle", panel_.Utfolle);
  row->addWidget(wordedLabel("Label8"));
  QLineEdit* const perStep = numberBox("Spm", panel_.Spm, spinFieldFigures);
  row->addWidget(perStep);
  row->addSpacing(spinFieldGap);
  row->addWidget(wordedLabel("Label9"));
  QLabel* const length = framedLabel("Uthossz", panel_.Uthossz);
  length->setFixedSize(numberBoxWidth(*this, 5), perStep->sizeHint().height());
  row->addWidget(length);
  row->addWidget(wordedLabel("Label10"));
  row->addStretch();
  return row;
}

QLayout* SetupTab::tolerance() {
  QHBoxLayout* const row = spinField("Tures", panel_.Tures, "Turesfolle", panel_.Turesfolle);
  row->addWidget(wordedLabel("Label12"));
  row->addStretch();
  return row;
}

QWidget* SetupTab::wholeStepBoxes() {
  auto* widget = new QWidget;
  auto* column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(wordedLabel("Label31"));
  column->addWidget(bound<QCheckBox>("Xegesz", panel_.Xegesz));
  column->addWidget(bound<QCheckBox>("Yegesz", panel_.Yegesz));
  column->addWidget(bound<QCheckBox>("Zegesz", panel_.Zegesz));
  return widget;
}

QWidget* SetupTab::uploadRow() {
  auto* widget = new QWidget;
  auto* row = flatRow(widget);
  auto* button = wordedButton<QPushButton>("Letolt", panel_.Letolt);
  button->setIcon(QIcon(QStringLiteral(":/pictures/upload.svg")));
  button->setIconSize({24, 24});
  row->addWidget(button);
  row->addSpacing(10);
  row->addWidget(wordedLabel("Label22"));
  row->addWidget(bound<QProgressBar>("Bar", panel_.Bar), 1);
  row->addWidget(bound<QLabel>("Label15", panel_.Label15));
  row->addWidget(bound<QLabel>("Verz", panel_.Verz));
  return widget;
}

}  // namespace monitra::desktop
