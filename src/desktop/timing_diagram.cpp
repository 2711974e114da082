#include "desktop/timing_diagram.h"

#include <QLabel>
#include <QPainter>

#include "desktop/words.h"
#include "shell/window_description.h"

namespace monitra::desktop {

namespace {

/// The part of the tab's space that the drawing takes, in twips.
constexpr int top = 660;
constexpr int right = 5580;
constexpr int bottom = 2100;

}  // namespace

TimingDiagram::TimingDiagram(const LineControl& controlOf, double scale, QWidget* parent)
    : QWidget(parent), scale_(scale), controlOf_(controlOf) {
  setFixedSize(qRound(right * scale), qRound((bottom - top) * scale));
  for (const auto& line : shell::diagramLines()) {
    if (controls::Line* const control = controlOf_(line.name)) {
      control->Visible.observe([this] { update(); });
    }
  }
  for (const auto& head : shell::diagramHeads()) {
    QLabel* const label = wordedLabel(head.name, this);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setEnabled(head.enabled);
    label->adjustSize();
    label->move(qRound(head.x * scale), qRound((head.y - top) * scale));
  }
}

void TimingDiagram::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPen curve(palette().color(QPalette::WindowText), 1);
  QPen marker(QColor(0xE0, 0x20, 0x20), 1, Qt::DotLine);
  const auto point = [this](int x, int y) {
    return QPointF(qRound(x * scale_) + 0.5, qRound((y - top) * scale_) + 0.5);
  };
  for (const auto& line : shell::diagramLines()) {
    const controls::Line* const control = controlOf_(line.name);
    if (control != nullptr && !control->Visible) continue;
    painter.setPen(line.marker ? marker : curve);
    painter.drawLine(point(line.x1, line.y1), point(line.x2, line.y2));
  }
}

}  // namespace monitra::desktop
