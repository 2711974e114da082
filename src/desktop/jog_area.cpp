#include "desktop/jog_area.h"

#include "widgets/jog_button.h"

namespace monitra::desktop {

using namespace widgets;

namespace {

/// The tab's space that the sketch and the buttons take, in twips.
constexpr QRect area{540, 2760, 6600, 1860};
constexpr int side = 510;

/// Middle of a button of Mozg in the same twips.
struct Place {
  int x, y;
  Qt::ArrowType arrow;
};

constexpr Place places[] = {
    {3600, 3135, Qt::UpArrow},    {3600, 4215, Qt::DownArrow}, {3060, 3675, Qt::LeftArrow},
    {4140, 3675, Qt::RightArrow}, {5580, 3405, Qt::UpArrow},   {5580, 3945, Qt::DownArrow},
};

}  // namespace

JogArea::JogArea(const WidgetMaker& widgets, double scale)
    : LineDrawing(widgets, {area, shell::axisLines(), shell::axisLetters()}, scale) {
  int i = 0;
  for (const Place& at : places) {
    auto* const button = widgets.make<JogButton>("Mozg", i++);
    button->setArrow(at.arrow, qRound(side * scale));
    button->setParent(this);
    button->move(place(at.x - side / 2, at.y - side / 2));
  }
}

}  // namespace monitra::desktop
