#include "desktop/footer.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "widgets/bindings.h"
#include "widgets/looks.h"
#include "widgets/narrow_button.h"
#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

/// The button of a mark of the Setup. Without one it shows other words in no colour, or where it
/// has none nothing.
QPushButton* markButton(const WidgetMaker& widgets, NameOf<QPushButton> name,
                        std::string (revisions::SetupMarks::*text)() const, const QString& plain) {
  auto* const button = widgets.make(name);
  const QString spoken = button->accessibleName();
  revisions::SetupMarks& marks = widgets.lap().revisions.marks;
  const auto adjust = [&marks, text](QPalette& colours) {
    const QColor own = QGuiApplication::palette().color(QPalette::ButtonText);
    colours.setColor(QPalette::ButtonText,
                     (marks.*text)().empty() ? own : fitting(warningOnLight, warningOnDark));
  };
  const auto show = [=, &marks] {
    const QString mark = toQt((marks.*text)());
    const QString words = mark.isEmpty() ? plain : mark;
    // Without a parent yet it would be shown as a window of its own.
    if (words.isEmpty() || button->parentWidget() != nullptr) button->setVisible(!words.isEmpty());
    if (words.isEmpty() || button->text() == words) return;
    button->setText(words);
    button->setAccessibleName(spoken + QStringLiteral(": ") + words);
    QPalette colours = button->palette();
    adjust(colours);
    button->setPalette(colours);
  };
  dynamic_cast<NarrowButton&>(*button).makeLow();
  // The row stays as high as it is.
  QSizePolicy size = button->sizePolicy();
  size.setRetainSizeWhenHidden(true);
  button->setSizePolicy(size);
  show();
  followTheme(button, adjust);
  keep(button, marks.observe(show));
  return button;
}

}  // namespace

Footer::Footer(const WidgetMaker& widgets) {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(6, 0, 6, 3);
  rows->setSpacing(1);
  rows->addLayout(names(widgets));
  rows->addLayout(port(widgets));
  rows->addWidget(widgets.make("Esemeny"));
  rows->addLayout(lamps(widgets));
}

QHBoxLayout* Footer::names(const WidgetMaker& widgets) {
  constexpr double namePoints = 15.75;
  constexpr double makerPoints = 8.25;
  constexpr int gap = 10;
  QHBoxLayout* const row = flatRow();
  QLabel* const program =
      inFont(widgets.make<QLabel>("Label21"), "Times New Roman", namePoints, true);
  program->setAlignment(Qt::AlignCenter);
  setTextColour(program, QColor(0x00, 0xC0, 0x00), QColor(0x00, 0xC0, 0x00));
  row->addWidget(program, 1);
  row->addLayout(marks(widgets));
  row->addSpacing(gap);
  auto* const maker = new QVBoxLayout;
  maker->setSpacing(0);
  for (const auto name : std::initializer_list<NameOf<QLabel>>{"Label13", "Label14"}) {
    QLabel* const address = bold(inFont(widgets.make(name), "Arial", makerPoints));
    setTextColour(address, QColor(0xD0, 0x10, 0x10), QColor(0xFF, 0x60, 0x60));
    maker->addWidget(address);
  }
  row->addLayout(maker);
  return row;
}

QHBoxLayout* Footer::port(const WidgetMaker& widgets) {
  QHBoxLayout* const row = flatRow();
  row->addWidget(widgets.make("PortAllapot"), 1);
  row->addWidget(widgets.make("Jelek"));
  row->addWidget(widgets.make("PortTeendo"));
  return row;
}

QHBoxLayout* Footer::lamps(const WidgetMaker& widgets) {
  constexpr int gap = 7;
  QHBoxLayout* const row = flatRow();
  row->setSpacing(gap);
  for (const shell::ControlName name :
       {shell::ControlName("MotorAram"), shell::ControlName("Maromotor"),
        shell::ControlName("OrajelMagas")}) {
    row->addWidget(widgets.make(name));
  }
  row->addStretch();
  return row;
}

QVBoxLayout* Footer::marks(const WidgetMaker& widgets) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(1);
  column->addWidget(markButton(widgets, "MentesJel", &revisions::SetupMarks::savedMark,
                               QStringLiteral("Összevetés…")));
  column->addWidget(markButton(widgets, "KuldesJel", &revisions::SetupMarks::sentMark, {}));
  return column;
}

}  // namespace monitra::desktop
