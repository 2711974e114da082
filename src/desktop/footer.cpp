#include "desktop/footer.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "desktop/words.h"

namespace monitra::desktop {

StatusLine::StatusLine(std::string_view name, controls::Label& control, QWidget* parent)
    : QLabel(parent) {
  setObjectName(toQt(name));
  bind(this, control);
  const auto show = [this, &control] {
    setToolTip(Qt::convertFromPlainText(toQt(control.Caption.get())));
  };
  show();
  control.Caption.observe(show);
}

QSize StatusLine::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

QSize StatusLine::sizeHint() const {
  return minimumSizeHint();
}

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fitting, foregroundRole());
}

Footer::Footer(controls::Label& PortAllapot, controls::Label& Esemeny, QWidget* parent)
    : QWidget(parent) {
  constexpr double namePoints = 15.75;
  constexpr double makerPoints = 8.25;
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(9, 0, 9, 4);
  rows->setSpacing(2);

  auto* names = flatRow();
  QLabel* const program = wordedLabel("Label21");
  QFont programFont(QStringLiteral("Times New Roman"));
  programFont.setPointSizeF(namePoints);
  programFont.setItalic(true);
  program->setFont(programFont);
  program->setAlignment(Qt::AlignCenter);
  setTextColour(program, QColor(0x00, 0xC0, 0x00));
  names->addWidget(program, 1);
  auto* maker = new QVBoxLayout;
  maker->setSpacing(0);
  for (const char* const name : {"Label13", "Label14"}) {
    QLabel* const address = wordedLabel(name);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(makerPoints);
    font.setBold(true);
    address->setFont(font);
    setTextColour(address, QColor(0xE0, 0x20, 0x20));
    maker->addWidget(address);
  }
  names->addLayout(maker);
  rows->addLayout(names);
  auto* port = new StatusLine("PortAllapot", PortAllapot);
  makeBold(port);
  rows->addWidget(port);
  rows->addWidget(new StatusLine("Esemeny", Esemeny));
}

}  // namespace monitra::desktop
