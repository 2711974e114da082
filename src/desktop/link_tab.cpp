#include "desktop/link_tab.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>

#include "desktop/led_bar.h"
#include "desktop/widgets.h"

namespace monitra::desktop {

namespace {

constexpr QSize icon{32, 32};

/// A check box on a ground of its own, in every theme with black or white words on it.
QCheckBox* permit(std::string_view name, controls::CheckBox& control, QColor ground, QColor words) {
  auto* box = bound<QCheckBox>(name, control);
  QPalette colours = box->palette();
  colours.setColor(QPalette::Window, ground);
  colours.setColor(QPalette::WindowText, words);
  box->setPalette(colours);
  box->setBackgroundRole(QPalette::Window);
  box->setAutoFillBackground(true);
  return box;
}

}  // namespace

LinkTab::LinkTab(bench::PhasePanel& phases, bench::LoadPanel& load, QWidget* parent)
    : QWidget(parent) {
  constexpr double titlePoints = 9.75;
  auto* rows = new QVBoxLayout(this);
  QLabel* const title = wordedLabel("Label24");
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(titlePoints);
  title->setFont(font);
  setTextColour(title, QColor(0x00, 0x70, 0x00), QColor(0x60, 0xD0, 0x60));
  QLabel* const mode = wordedLabel("Label27");
  setTextColour(mode, QColor(0xD0, 0x10, 0x10), QColor(0xFF, 0x60, 0x60));
  rows->addWidget(title, 0, Qt::AlignHCenter);
  rows->addWidget(mode, 0, Qt::AlignHCenter);
  auto* frames = flatRow();
  for (int motor = 0; motor < 3; ++motor) frames->addWidget(phaseFrame(phases, motor));
  frames->addWidget(loadFrame(load), 1);
  rows->addLayout(frames, 1);
}

QWidget* LinkTab::phaseFrame(bench::PhasePanel& phases, int motor) {
  constexpr const char* names[] = {"Frame5", "Frame6", "Frame7"};
  QGroupBox* const frame = wordedFrame(names[motor]);
  auto* column = new QVBoxLayout(frame);
  column->addWidget(picture("Picture1", ":/pictures/motor.svg", motorPicture, motor + 1));
  QLabel* const head = wordedLabel("Label26");
  head->setObjectName(QStringLiteral("Label26(%1)").arg(motor));
  column->addWidget(head);
  for (int row = 0; row < bench::phaseRows; ++row) {
    const int i = bench::phaseIndex(motor, row);
    const std::string name = "L(" + std::to_string(i) + ")";
    column->addWidget(wordedButton<QRadioButton>(name, phases.L[i]));
  }
  column->addStretch();
  column->addWidget(wordedButton<QPushButton>("Leptet", phases.Leptet[motor], motor));
  return frame;
}

QWidget* LinkTab::loadFrame(bench::LoadPanel& load) {
  QGroupBox* const frame = wordedFrame("Frame8");
  auto* rows = new QVBoxLayout(frame);
  auto* top = flatRow();
  top->addLayout(loadDisplay(load), 1);
  top->addLayout(loadBar(load));
  rows->addLayout(top, 1);
  rows->addWidget(permit("TulH", load.TulH, QColor(0xFF, 0xE9, 0x30), Qt::black));
  rows->addWidget(permit("Teh200", load.Teh200, QColor(0xD8, 0x18, 0x18), Qt::white));
  rows->addWidget(warning(load));
  return frame;
}

QLayout* LinkTab::loadDisplay(bench::LoadPanel& load) {
  constexpr double points = 24;
  auto* column = new QVBoxLayout;
  auto* display = bound<QLineEdit>("Taptext", load.Taptext);
  QFont figures = display->font();
  figures.setPointSizeF(points);
  figures.setBold(true);
  display->setFont(figures);
  display->setFocusPolicy(Qt::ClickFocus);
  display->setAlignment(Qt::AlignCenter);
  QPalette colours = display->palette();
  colours.setColor(QPalette::Base, Qt::black);
  display->setPalette(colours);
  display->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  display->setMinimumWidth(QFontMetrics(figures).horizontalAdvance(QStringLiteral(" 166.6%")) + 16);
  QLabel* const head = wordedLabel("Label28");
  head->setFrameShape(QFrame::Box);
  head->setAlignment(Qt::AlignCenter);
  auto* more = wordedButton<QPushButton>("TapFel", load.TapFel);
  more->setIcon(QIcon(QStringLiteral(":/pictures/load.svg")));
  more->setIconSize(icon);
  auto* stop = bound<QPushButton>("TapStop", load.TapStop);
  stop->setIcon(QIcon(QStringLiteral(":/pictures/stop.svg")));
  stop->setIconSize(icon);
  column->addWidget(display);
  column->addWidget(head);
  column->addStretch();
  column->addWidget(more);
  column->addWidget(stop);
  column->addStretch();
  return column;
}

QLayout* LinkTab::loadBar(bench::LoadPanel& load) {
  auto* column = new QVBoxLayout;
  auto* bar = new LedBar(load.LEDsav);
  describe(bar, "LEDsav");
  column->addWidget(wordedLabel("Label25(1)"), 0, Qt::AlignHCenter);
  column->addWidget(bar, 1, Qt::AlignHCenter);
  column->addWidget(wordedLabel("Label25(0)"), 0, Qt::AlignHCenter);
  return column;
}

QWidget* LinkTab::warning(bench::LoadPanel& load) {
  QGroupBox* const frame = wordedFrame("Figy");
  bind(frame, load.Figy);
  auto* column = new QVBoxLayout(frame);
  auto* words = bound<QLabel>("Figy2", load.Figy2);
  makeBold(words);
  words->setWordWrap(true);
  words->setAlignment(Qt::AlignCenter);
  QPalette colours = words->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    colours.setColor(group, QPalette::WindowText, Qt::yellow);
  }
  words->setPalette(colours);
  column->addWidget(words);
  return frame;
}

}  // namespace monitra::desktop
