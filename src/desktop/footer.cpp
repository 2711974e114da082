#include "desktop/footer.h"

#include <QLabel>
#include <QVBoxLayout>

#include "widgets/bindings.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

/// A label for a mark of the Setup, which shows only while there is one.
QLabel* markLabel(const WidgetMaker& widgets, NameOf<QLabel> name,
                  std::string (shell::SetupMarks::*text)() const) {
  auto* const label = widgets.make(name);
  const QString spoken = label->accessibleName();
  shell::SetupMarks& marks = widgets.lap().marks;
  const auto show = [label, spoken, &marks, text] {
    const QString mark = toQt((marks.*text)());
    if (label->text() == mark) return;
    label->setText(mark);
    label->setAccessibleName(mark.isEmpty() ? spoken : spoken + QStringLiteral(": ") + mark);
  };
  show();
  keep(label, marks.observe(show));
  setTextColour(label, warningOnLight, warningOnDark);
  label->setAlignment(Qt::AlignRight);
  return label;
}

}  // namespace

Footer::Footer(const WidgetMaker& widgets) {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(6, 0, 6, 3);
  rows->setSpacing(1);
  rows->addLayout(names(widgets));
  rows->addLayout(port(widgets));
  rows->addWidget(widgets.make("Esemeny"));
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
  row->addWidget(widgets.make("PortTeendo"));
  return row;
}

QVBoxLayout* Footer::marks(const WidgetMaker& widgets) {
  auto* const column = new QVBoxLayout;
  column->setSpacing(0);
  column->addWidget(markLabel(widgets, "MentesJel", &shell::SetupMarks::savedMark));
  column->addWidget(markLabel(widgets, "KuldesJel", &shell::SetupMarks::sentMark));
  return column;
}

}  // namespace monitra::desktop
