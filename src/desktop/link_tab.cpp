#include "desktop/link_tab.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtMath>
#include <algorithm>
#include <vector>

#include "bench/phase_panel.h"
#include "desktop/picture_sizes.h"
#include "widgets/looks.h"
#include "widgets/picture.h"
#include "widgets/svg_icon.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

void giveIcon(QPushButton* button, const char* file) {
  constexpr QSize size{32, 32};
  button->setIcon(svgIcon(QString::fromLatin1(file)));
  button->setIconSize(size);
}

/// Bright figures on black, in every theme.
void makeDisplay(QLineEdit* display) {
  constexpr double points = 24;
  constexpr int air = 16;
  QFont figures = display->font();
  figures.setBold(true);
  // So large a font asks for so much more than the one that the window has.
  const double larger = points / QFontInfo(figures).pointSizeF();
  const QFontMetrics metrics(figures);
  const QString widest = QStringLiteral(" 166.6%");
  display->setMinimumWidth(qCeil(metrics.horizontalAdvance(widest) * larger) + air);
  display->setFixedHeight(qCeil(metrics.height() * larger) + air / 2);
  figures.setPointSizeF(points);
  beforeSeen(display, [display, figures] { display->setFont(figures); });
  display->setFocusPolicy(Qt::ClickFocus);
  display->setAlignment(Qt::AlignCenter);
  QPalette colours = display->palette();
  colours.setColor(QPalette::Base, Qt::black);
  display->setPalette(colours);
  display->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

/// Lets the arrow keys walk along a motor's options without selecting them, for to select is to
/// send; the space bar selects. The tab key leads to the selected one.
class OptionKeys : public QObject {
 public:
  using QObject::QObject;

  void add(QRadioButton* option) {
    options_.push_back(option);
    option->installEventFilter(this);
    connect(option, &QRadioButton::toggled, this, [this] { leadTab(); });
    leadTab();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) leadTab();
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
    if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
    const auto count = static_cast<int>(options_.size());
    const auto at = static_cast<int>(std::ranges::find(options_, watched) - options_.begin());
    int next = at;
    do {
      next = (next + (back ? count - 1 : 1)) % count;
    } while (!options_[static_cast<std::size_t>(next)]->isEnabled() && next != at);
    options_[static_cast<std::size_t>(next)]->setFocus();
    return true;
  }

 private:
  void leadTab() {
    for (QRadioButton* const option : options_) {
      option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }

  std::vector<QRadioButton*> options_;
};

}  // namespace

LinkTab::LinkTab(const WidgetMaker& widgets) : widgets_(widgets) {
  auto* const title = widgets_.make<QLabel>("Label24");
  constexpr double titlePoints = 9.75;
  const double larger = titlePoints / QFontInfo(title->font()).pointSizeF();
  title->setMinimumHeight(qCeil(title->fontMetrics().height() * larger));
  beforeSeen(title, [title] { inFont(title, "Arial", titlePoints); });
  setTextColour(title, QColor(0x00, 0x70, 0x00), QColor(0x60, 0xD0, 0x60));
  QLabel* const mode = widgets_.make<QLabel>("Label27");
  setTextColour(mode, QColor(0xD0, 0x10, 0x10), QColor(0xFF, 0x60, 0x60));
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(pageMargin, smallGap, pageMargin, pageMargin);
  rows->setSpacing(smallGap);
  rows->addWidget(title, 0, Qt::AlignHCenter);
  rows->addWidget(mode, 0, Qt::AlignHCenter);
  QHBoxLayout* const frames = flatRow();
  for (int motor = 0; motor < 3; ++motor) frames->addWidget(phaseFrame(motor));
  frames->addWidget(loadFrame(), 1);
  rows->addLayout(frames, 1);
}

QWidget* LinkTab::phaseFrame(int motor) {
  constexpr NameOf<QGroupBox> names[] = {"Frame5", "Frame6", "Frame7"};
  auto* const frame = widgets_.make(names[motor]);
  auto* const column = new QVBoxLayout(frame);
  column->setSpacing(smallGap);
  auto* const drawing = widgets_.make<Picture>("Picture1", motor + 1);
  drawing->show(QStringLiteral(":/pictures/motor.svg"), motorPicture);
  column->addWidget(drawing);
  column->addWidget(widgets_.make("Label26", motor));
  auto* const keys = new OptionKeys(frame);
  for (int row = 0; row < bench::phaseRows; ++row) {
    auto* const option = widgets_.make<QRadioButton>("L", bench::phaseIndex(motor, row));
    keys->add(option);
    column->addWidget(option);
  }
  column->addStretch();
  column->addWidget(widgets_.make("Leptet", motor));
  return frame;
}

QWidget* LinkTab::loadFrame() {
  auto* const frame = widgets_.make<QGroupBox>("Frame8");
  auto* const rows = new QVBoxLayout(frame);
  rows->setSpacing(smallGap);
  QHBoxLayout* const top = flatRow();
  top->addLayout(loadDisplay(), 1);
  top->addLayout(loadBar());
  rows->addLayout(top, 1);
  rows->addWidget(permit("TulH", QColor(0xFF, 0xE9, 0x30), Qt::black));
  rows->addWidget(permit("Teh200", QColor(0xD8, 0x18, 0x18), Qt::white));
  rows->addWidget(warning());
  return frame;
}

QLayout* LinkTab::loadDisplay() {
  auto* const column = new QVBoxLayout;
  auto* const display = widgets_.make<QLineEdit>("Taptext");
  makeDisplay(display);
  auto* const more = widgets_.make<QPushButton>("TapFel");
  giveIcon(more, ":/pictures/load.svg");
  auto* const stop = widgets_.make<QPushButton>("TapStop");
  giveIcon(stop, ":/pictures/stop.svg");
  column->addWidget(display);
  column->addWidget(widgets_.make("Label28"));
  column->addStretch();
  column->addWidget(more);
  column->addWidget(stop);
  column->addStretch();
  return column;
}

QLayout* LinkTab::loadBar() {
  auto* const column = new QVBoxLayout;
  column->addWidget(widgets_.make({"Label25", 1}), 0, Qt::AlignHCenter);
  column->addWidget(widgets_.make("LEDsav"), 1, Qt::AlignHCenter);
  column->addWidget(widgets_.make({"Label25", 0}), 0, Qt::AlignHCenter);
  return column;
}

/// A check box on a ground of its own, with its own colours in every theme.
QWidget* LinkTab::permit(shell::ControlName name, QColor ground, QColor words) {
  QWidget* const box = widgets_.make(name);
  QPalette colours = box->palette();
  colours.setColor(QPalette::Window, ground);
  colours.setColor(QPalette::WindowText, words);
  colours.setColor(QPalette::Base, Qt::white);
  colours.setColor(QPalette::Text, Qt::black);
  box->setPalette(colours);
  box->setBackgroundRole(QPalette::Window);
  box->setAutoFillBackground(true);
  return box;
}

QWidget* LinkTab::warning() {
  auto* const frame = widgets_.make<QGroupBox>("Figy");
  auto* const column = new QVBoxLayout(frame);
  QLabel* const words = bold(widgets_.make<QLabel>("Figy2"));
  constexpr int air = 4;
  words->setWordWrap(true);
  // Three lines are enough at every width that the window can have.
  words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  words->setFixedHeight(3 * words->fontMetrics().lineSpacing() + air);
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
